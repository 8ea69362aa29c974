#include "host/preview/preview_view.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

namespace host {

PreviewView::PreviewView(QWidget *parent)
    : QWidget(parent), m_canvas(new SheetCanvas), m_previous(new QToolButton),
      m_next(new QToolButton), m_sheet(new QSpinBox) {
    m_canvas->setObjectName(QStringLiteral("previewSheet"));
    m_canvas->setAccessibleDescription(
        tr("Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them."));
    m_previous->setObjectName(QStringLiteral("previewPrevious"));
    m_previous->setToolTip(tr("Previous side"));
    m_previous->setAccessibleName(tr("Previous side"));
    m_next->setObjectName(QStringLiteral("previewNext"));
    m_next->setToolTip(tr("Next side"));
    m_next->setAccessibleName(tr("Next side"));
    for (QToolButton *button : {m_previous, m_next}) {
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::TabFocus);
    }
    m_sheet->setObjectName(QStringLiteral("previewNumber"));
    m_sheet->setAccessibleName(tr("Sheet"));
    m_sheet->setToolTip(tr("Type the sheet to look at"));
    m_sheet->setKeyboardTracking(false);
    m_sheet->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_sheet->setAlignment(Qt::AlignCenter);
    m_sheet->installEventFilter(this);

    auto *turning = new QHBoxLayout;
    turning->addWidget(m_previous);
    turning->addWidget(m_sheet, 1);
    turning->addWidget(m_next);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_canvas, 1);
    layout->addLayout(turning);
    setFocusProxy(m_canvas);

    connect(m_canvas, &SheetCanvas::stepped, this, &PreviewView::step);
    connect(m_canvas, &SheetCanvas::resized, this, &PreviewView::refresh);
    connect(m_previous, &QToolButton::clicked, this, [this] { step(SheetCanvas::Step::Previous); });
    connect(m_next, &QToolButton::clicked, this, [this] { step(SheetCanvas::Step::Next); });
    connect(m_sheet, &QSpinBox::valueChanged, this, [this](int sheet) {
        if (m_layout)
            showSide(m_layout->isTwoSided() ? (sheet - 1) * 2 : sheet - 1);
    });
    updateArrows();
    refresh();
}

PreviewView::~PreviewView() = default;

void PreviewView::setDocument(const Document &document) {
    m_document = document;
    m_page = m_side = 0;
    openDocument();
}

void PreviewView::clear() {
    m_document.reset();
    openDocument();
}

void PreviewView::openDocument() {
    const bool wasKnown = pageCount() > 0;
    m_source.reset();
    m_layout.reset();
    if (m_document) {
        const QSizeF paper = SheetLayout(m_options, 0, {}).paper();
        m_source = std::make_unique<PageSource>(*m_document, paper);
        connect(m_source.get(), &PageSource::opened, this, [this](int count) {
            layOut();
            emit pageCountKnown(count);
        });
        connect(m_source.get(), &PageSource::failed, this, &PreviewView::refresh);
        connect(m_source.get(), &PageSource::changed, this, &PreviewView::layOut);
    }
    refresh();
    if (wasKnown)
        emit pageCountKnown(0);
}

void PreviewView::setSheet(const SheetOptions &options) {
    if (m_options == options)
        return;
    const bool isOtherPaper = m_options.paper != options.paper;
    m_options = options;
    // Its pages may be as large as the paper.
    if (isOtherPaper && m_document && m_document->type == Document::Type::PostScript)
        openDocument();
    else
        layOut();
}

int PreviewView::pageCount() const {
    return m_source ? m_source->pageCount() : 0;
}

void PreviewView::showSide(int side) {
    if (!m_layout || m_layout->sideCount() == 0)
        return;
    m_side = qBound(0, side, m_layout->sideCount() - 1);
    m_page = m_layout->pagesOn(m_side).value(0);
    refresh();
}

void PreviewView::step(SheetCanvas::Step step) {
    switch (step) {
    case SheetCanvas::Step::First:
        return showSide(0);
    case SheetCanvas::Step::Previous:
        return showSide(m_side - 1);
    case SheetCanvas::Step::Next:
        return showSide(m_side + 1);
    case SheetCanvas::Step::Last:
        return showSide(m_layout ? m_layout->sideCount() - 1 : 0);
    }
}

void PreviewView::layOut() {
    if (pageCount() > 0) {
        m_layout.emplace(m_options, pageCount(), m_source->largest());
        m_side = m_layout->sideOf(m_page);
    }
    refresh();
}

void PreviewView::refresh() {
    if (!m_source)
        return showWords(tr("No document"));
    if (!m_source->problem().isNull())
        return showWords(tr("The preview can't be drawn: %1").arg(m_source->problem()));
    if (!m_layout)
        return showWords(tr("Preparing the preview…"));
    if (m_layout->sideCount() == 0) {
        m_source->want({}, {});
        return showWords(tr("The document has none of the chosen pages."));
    }
    showPosition();
    const QList<int> measured = m_layout->pagesFor(m_side);
    for (const int page : measured)
        if (!m_source->hasSize(page))
            return m_source->want(measured, {});
    m_canvas->showSide(m_source.get(),
                       m_layout->asSeen(m_side, [this](int page) { return m_source->size(page); }),
                       m_options.grey);
    m_source->want({}, m_canvas->wishes());
}

void PreviewView::showWords(const QString &words) {
    m_canvas->showWords(words);
    showPosition();
    nameCanvas(words);
}

/// A screen reader is told changes only.
void PreviewView::nameCanvas(const QString &words) {
    if (m_canvas->accessibleName() != words)
        m_canvas->setAccessibleName(words);
}

void PreviewView::showPosition() {
    const int sheets = m_layout ? m_layout->sheetCount() : 0;
    m_previous->setEnabled(sheets > 0 && m_side > 0);
    m_next->setEnabled(sheets > 0 && m_side < m_layout->sideCount() - 1);
    const QString words = sheets == 0                ? QStringLiteral(" %1")
                          : !m_layout->isTwoSided()  ? tr("Sheet %1 of %2")
                          : m_layout->isBack(m_side) ? tr("Sheet %1 of %2, back")
                                                     : tr("Sheet %1 of %2, front");
    const int sheet = sheets > 0 ? m_layout->sheetOf(m_side) + 1 : 0;
    // A number that is being typed stays until there is another one to show.
    if (const QString position = QString(words)
                                     .replace(QLatin1String("%1"), QString::number(sheet))
                                     .replace(QLatin1String("%2"), QString::number(sheets));
        position != m_position) {
        m_position = position;
        const QSignalBlocker blocker(m_sheet);
        const qsizetype place = words.indexOf(QLatin1String("%1"));
        m_sheet->setEnabled(sheets > 0);
        m_sheet->setSpecialValueText(sheets > 0 ? QString() : QStringLiteral(" "));
        m_sheet->setRange(qMin(sheets, 1), sheets);
        m_sheet->setPrefix(words.left(place));
        m_sheet->setSuffix(
            words.mid(place + 2).replace(QLatin1String("%2"), QString::number(sheets)));
        m_sheet->setValue(sheet);
    }
    if (sheets > 0)
        nameCanvas(describeSide());
}

QString PreviewView::describeSide() const {
    const QList<int> pages = m_layout->pagesOn(m_side);
    QStringList numbers;
    QStringList problems;
    for (const int page : pages) {
        numbers.append(QString::number(page + 1));
        problems.append(m_source->pageProblem(page));
    }
    problems.removeAll(QString());
    const QString what = pages.size() == 1
                             ? tr("page %1").arg(numbers[0])
                             : tr("pages %1").arg(QLocale().createSeparatedList(numbers));
    return tr("%1, %2", "sheet, pages").arg(m_position, what) +
           (problems.isEmpty() ? QString() : QStringLiteral(". ") + problems.join(u' '));
}

void PreviewView::updateArrows() {
    m_previous->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    m_next->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
}

void PreviewView::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        updateArrows();
}

/// Enter goes to the sheet, and not on to a dialog's default button.
bool PreviewView::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_sheet->interpretText();
            m_sheet->selectAll();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace host
