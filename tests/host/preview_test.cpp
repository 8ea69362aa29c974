#include "run_host.h"
#include "support/ppd_text.h"

#include "host/preview/preview_view.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using host::Document;
using host::PageSource;
using host::PageWish;

namespace {

bool waitFor(const std::function<bool()> &holds) {
    QElapsedTimer timer;
    timer.start();
    while (!holds() && timer.elapsed() < 60000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    return holds();
}

/// Each page tells its number.
QColor colourOf(int page) {
    return QColor(200 - page / 100 * 20, page / 10 % 10 * 25, page % 10 * 25);
}

QByteArray paintPage(int page) {
    const QColor colour = colourOf(page);
    return QStringLiteral("%1 %2 %3 rg 0 0 5000 5000 re f")
        .arg(colour.redF())
        .arg(colour.greenF())
        .arg(colour.blueF())
        .toLatin1();
}

/// A document of one page for each box; content for the pages that are told apart by it.
Document pdf(const QByteArrayList &boxes, const QByteArray &firstContent = {}) {
    QByteArrayList objects{"<</Type/Catalog/Pages 2 0 R>>", {}};
    QByteArray kids;
    for (int i = 0; i < boxes.size(); ++i) {
        const QByteArray content = i == 0 && !firstContent.isNull() ? firstContent : paintPage(i);
        kids += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects.append("<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + boxes[i] + "]/Contents " +
                       QByteArray::number(objects.size() + 2) + " 0 R>>");
        objects.append("<</Length " + QByteArray::number(content.size()) + ">>\nstream\n" +
                       content + "\nendstream");
    }
    objects[1] =
        "<</Type/Pages/Kids[" + kids + "]/Count " + QByteArray::number(boxes.size()) + ">>";
    QByteArray text = "%PDF-1.4\n", table;
    for (int i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(text.size()).rightJustified(10, '0') + " 00000 n \n";
        text += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(text.size());
    text += "xref\n0 " + size + "\n0000000000 65535 f \n" + table + "trailer\n<</Size " + size +
            "/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
    return {Document::Type::Pdf, "test.pdf", text};
}

Document pages(int count) {
    return pdf(QByteArrayList(count, "595 842"));
}

Document postScript(const QByteArray &text) {
    return {Document::Type::PostScript, "test.ps", text};
}

/// "3@20,30 100x200 r90": the page's number, its place and its rotation.
std::string words(const host::SheetSide &side) {
    QStringList words;
    for (const host::PlacedPage &page : side.pages)
        words.append(QStringLiteral("%1@%2,%3 %4x%5 r%6")
                         .arg(page.page + 1)
                         .arg(qRound(page.place.x()))
                         .arg(qRound(page.place.y()))
                         .arg(qRound(page.place.width()))
                         .arg(qRound(page.place.height()))
                         .arg(page.rotation));
    return words.join("; ").toStdString();
}

/// What the middle of the sheet shows; nothing while there is no sheet.
QColor middle(host::PreviewView &view) {
    auto *canvas = view.findChild<QWidget *>("previewSheet");
    return canvas->grab().toImage().pixelColor(canvas->rect().center());
}

QString name(host::PreviewView &view) {
    return view.findChild<QWidget *>("previewSheet")->accessibleName();
}

bool isNear(const QColor &a, const QColor &b) {
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 6;
}

} // namespace

// As CUPS' pdftopdf lays them out.
TEST(Preview, LaysPagesOutAsTheFilterDoes) {
    const QSizeF a4(595, 842), wide(842, 595), a5(420, 595), a3(842, 1191);
    const QRectF margins(20, 60, 525, 742);
    const struct {
        QSizeF page;
        host::SheetOptions options;
        int sides, side;
        const char *printed;
    } cases[] = {
        {a4, {a4, margins}, 10, 9, "10@0,0 595x842 r0"},
        {wide, {a4, margins}, 10, 0, "1@0,0 595x842 r90"},
        {wide, {a4, margins, 4}, 10, 0, "1@0,0 595x842 r270"},
        {a4, {a4, margins, 5}, 10, 0, "1@0,0 595x842 r180"},
        {a5, {a4, margins}, 10, 0, "1@88,124 420x595 r0"},
        {a3, {a4, margins}, 10, 0, "1@20,60 525x742 r0"},
        {a3, {a4, margins, 4}, 10, 0, "1@50,40 525x742 r0"},
        {a3, {a4, {}}, 10, 0, "1@0,0 595x842 r0"},
        {QSizeF(), {a4, margins}, 10, 0, "1@0,0 595x842 r0"},
        {a4, {a4, margins, 0, 2}, 5, 4, "9@0,0 595x420 r90; 10@0,421 595x420 r90"},
        {a4, {a4, margins, 4, 2}, 5, 0, "1@0,421 595x420 r270; 2@0,0 595x420 r270"},
        {wide, {a4, margins, 6, 2}, 5, 0, "1@0,421 595x420 r0; 2@0,0 595x420 r0"},
        {a4, {wide, {}, 0, 2}, 5, 0, "1@421,0 420x595 r180; 2@0,0 420x595 r180"},
        {a4, {a4, margins, 0, 4, "2-"}, 2, 1, "9@0,0 298x421 r0; 10@298,0 298x421 r0"},
        {a4,
         {a4, margins, 0, 6, "2"},
         1,
         0,
         "7@298,35 298x210 r90; 8@298,316 298x210 r90; 9@298,597 298x210 r90; 10@0,35 298x210 r90"},
        {a4, {a4, margins, 5, 16, "1"}, 1, 0, nullptr},
        {a4, {a4, margins, 0, 9}, 2, 1, "10@0,0 198x281 r0"},
        {a4, {a4, margins, 0, 5, "2-3,7-"}, 6, 2, "7@0,0 595x842 r0"},
        {a4, {a4, margins, 0, 1, "11-"}, 0, 0, ""},
        {a4, {a4, margins, 0, 1, "5-2"}, 10, 1, "2@0,0 595x842 r0"},
    };
    for (const auto &c : cases) {
        const host::SheetLayout layout(
            c.options, 10,
            {qMin(c.page.width(), c.page.height()), qMax(c.page.width(), c.page.height())});
        const std::string what = c.printed ? c.printed : "16 on a sheet";
        EXPECT_EQ(layout.sideCount(), c.sides) << what;
        const auto size = [&](int) { return c.page; };
        if (c.printed)
            EXPECT_EQ(words(layout.asPrinted(c.side, size)), c.printed);
        else
            EXPECT_EQ(layout.asPrinted(c.side, size).pages.size(), 10);
    }
}

TEST(Preview, TurnsSheetsAsAPersonDoes) {
    const struct {
        QSizeF page;
        int orientation, numberUp;
        const char *sides;
        int front, back; ///< how pages lie on the side that is looked at
        bool isWide;
    } cases[] = {
        {{595, 842}, 0, 1, "two-sided-long-edge", 0, 0, false},
        {{595, 842}, 0, 1, "two-sided-short-edge", 0, 180, false},
        {{842, 595}, 0, 1, "two-sided-long-edge", 0, 180, true},
        {{842, 595}, 0, 1, "two-sided-short-edge", 0, 0, true},
        {{595, 842}, 0, 2, "two-sided-short-edge", 0, 0, true},
        {{842, 595}, 0, 2, "one-sided", 0, 0, false},
        {{595, 842}, 6, 1, "two-sided-long-edge", 180, 180, false},
    };
    for (const auto &c : cases) {
        host::SheetOptions options{{595, 842}, {}, c.orientation, c.numberUp};
        options.sides = c.sides;
        const host::SheetLayout layout(options, 8, {595, 842});
        const auto size = [&](int) { return c.page; };
        const host::SheetSide front = layout.asSeen(2, size), back = layout.asSeen(3, size);
        EXPECT_EQ(front.pages[0].rotation, c.front) << c.sides;
        EXPECT_EQ(back.pages[0].rotation, c.back) << c.sides;
        EXPECT_EQ(back.size.width() > back.size.height(), c.isWide) << c.sides;
    }
}

TEST(Preview, ShowsWhatThePersonTurnsTo) {
    host::PreviewView view;
    view.resize(400, 500);
    EXPECT_EQ(name(view), "No document");
    QList<int> counts;
    QObject::connect(&view, &host::PreviewView::pageCountKnown,
                     [&](int count) { counts.append(count); });
    view.setDocument(pages(1000));
    EXPECT_EQ(name(view), "Preparing the preview…");
    ASSERT_TRUE(waitFor([&] { return isNear(middle(view), colourOf(0)); }));
    auto *canvas = view.findChild<QWidget *>("previewSheet");
    for (int i = 0; i < 300; ++i)
        QTest::keyClick(canvas, Qt::Key_PageDown);
    QTest::keyClick(canvas, Qt::Key_End);
    EXPECT_EQ(name(view), "Sheet 1000 of 1000, page 1000");
    EXPECT_TRUE(waitFor([&] { return isNear(middle(view), colourOf(999)); }));

    host::SheetOptions options{{595, 842}, {}};
    options.sides = "two-sided-long-edge";
    options.grey = true;
    view.setSheet(options);
    EXPECT_EQ(name(view), "Sheet 500 of 500, back, page 1000") << "it stays at its page";
    const int grey = (30 * 20 + 70 * 225) / 100; // of (20, 225, 225)
    EXPECT_TRUE(waitFor([&] { return isNear(middle(view), QColor(grey, grey, grey)); }));
    auto *number = view.findChild<QSpinBox *>("previewNumber");
    number->selectAll();
    QTest::keyClicks(number, "30");
    QTest::keyClick(number, Qt::Key_Return);
    EXPECT_EQ(name(view), "Sheet 30 of 500, front, page 59");
    view.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(canvas, Qt::Key_Left);
    EXPECT_EQ(name(view), "Sheet 30 of 500, back, page 60");
    options.pageRanges = "2000";
    view.setSheet(options);
    EXPECT_EQ(name(view), "The document has none of the chosen pages.");
    view.clear();
    EXPECT_EQ(counts, (QList<int>{1000, 0}));
}

TEST(Preview, DrawsNothingThatNobodyLooksAt) {
    QByteArray slow; // for minutes
    for (int i = 0; i < 400000; ++i)
        slow += "0 0 m 595 842 l 0 842 m 595 0 l 300 w S\n";
    PageSource source(pdf(QByteArrayList(1000, "595 842"), slow), {595, 842});
    ASSERT_TRUE(waitFor([&] { return source.pageCount() > 0; }));
    const auto wish = [](int page) { return PageWish{page, {1500, 2000}, 0, false}; };
    for (int page = 0; page < 1000; ++page)
        source.want({}, {wish(page)});
    ASSERT_TRUE(waitFor([&] { return source.isDone(wish(999)); }));
    source.want({}, {wish(0)});
    QTest::qWait(100); // it is under way
    source.want({}, {wish(999)});
    int drawn = 0;
    for (int page = 0; page < 1000; ++page)
        drawn += source.isDone(wish(page)) ? 1 : 0;
    EXPECT_LT(drawn, 100);
    EXPECT_FALSE(source.isDone(wish(0)));
    // What is kept has a bound.
    for (int page = 1; page < 20; ++page) {
        source.want({page}, {wish(page)});
        ASSERT_TRUE(waitFor([&] { return source.isDone(wish(page)); }));
    }
    EXPECT_LE(source.keptBytes(), PageSource::kMostBytes);
    EXPECT_EQ(source.size(5), QSizeF(595, 842));
}

TEST(Preview, TellsInWordsWhatCannotBeDrawn) {
    QTemporaryDir folder;
    const QString locked = folder.filePath("locked.pdf");
    QProcess::execute("gs",
                      {"-q", "-dNOPAUSE", "-dBATCH", "-sDEVICE=pdfwrite", "-sUserPassword=u",
                       "-sOwnerPassword=o", "-sOutputFile=" + locked, samplePath("sample.ps")});
    const struct {
        Document document;
        const char *words; ///< in the name
    } cases[] = {
        {{Document::Type::Pdf, "a.pdf", QByteArray("%PDF-1.4\nnothing")},
         "drawn: the document is damaged."},
        {{Document::Type::Pdf, "a.pdf", pages(3).content.mid(0, 120)},
         "drawn: the document is damaged."},
        {host::readDocument(locked), "drawn: the document is protected by a password."},
        {pdf({}), "drawn: the document has no pages."},
        {pdf({"2000000000 1000000000"}), "page 1. Page 1 has a size that can't be drawn."},
        {postScript("%!PS\nthis is wrong\n"), "drawn: test.ps: gs can't convert it to PDF"},
    };
    for (const auto &c : cases) {
        host::PreviewView view;
        view.resize(400, 500);
        view.setDocument(c.document);
        EXPECT_TRUE(waitFor([&] { return name(view).contains(c.words); }))
            << c.words << "\n"
            << name(view).toStdString();
    }
    for (const char *box : {"0 0", "inf inf", "-5 1e-9", "0.1 99999", "99999 3"}) {
        host::PreviewView view;
        view.resize(400, 500);
        view.setDocument(pdf({box, "595 842"}));
        view.showSide(1);
        EXPECT_TRUE(waitFor([&] {
            view.showSide(1);
            return isNear(middle(view), colourOf(1));
        })) << box;
    }
}

TEST(Preview, PostScriptIsDrawnOnThePaper) {
    host::PreviewView view;
    view.resize(400, 500);
    view.setSheet({{400, 500}, {}});
    const QByteArray paint = "%!PS-Adobe-3.0 EPSF-3.0\n1 0 0 setrgbcolor 0 0 900 900 rectfill\n";
    view.setDocument(postScript(paint)); // without a showpage
    EXPECT_TRUE(waitFor([&] { return isNear(middle(view), Qt::red); }));
    EXPECT_EQ(name(view), "Sheet 1 of 1, page 1");
    QElapsedTimer timer;
    timer.start();
    view.setDocument(postScript("%!PS\n{} loop\n"));
    view.setSheet({{595, 842}, {}}); // asks anew
    QTest::qWait(100);
    view.clear();
    EXPECT_LT(timer.elapsed(), 30000);
}
