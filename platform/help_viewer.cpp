#include "platform/help_viewer.h"

#include "platform/help_book_list.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStandardPaths>
#include <QStyle>
#include <QTextBrowser>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int32_t kMissing = -43;
constexpr char kHelpFolder[] = "Help";

/// The folder of the book in the best language that has one; null without any.
QString bookFolder(const Bundle &bundle) {
    const QDir resources(bundle.directory() + QStringLiteral("/Resources"));
    if (!resources.exists(kHelpFolder))
        return {};
    for (const QString &language : Bundle::languages())
        for (const QString &folder : {language + QStringLiteral(".lproj"), language}) {
            const QString path = resources.filePath(folder + u'/' + kHelpFolder);
            if (QFileInfo(path).isDir())
                return path;
        }
    return resources.filePath(kHelpFolder);
}

QString firstPage(const Bundle &bundle) {
    for (const char *name : {"index.htm", "index.html"})
        if (const QString path = bundle.resourcePath(name, {}, kHelpFolder); !path.isNull())
            return path;
    const QDir folder(bookFolder(bundle));
    const QStringList pages = folder.entryList({"*.htm", "*.html"}, QDir::Files, QDir::Name);
    return pages.isEmpty() ? QString() : folder.filePath(pages.first());
}

class HelpWindow : public QWidget {
public:
    HelpWindow() : m_page(new QTextBrowser(this)) {
        setObjectName(QStringLiteral("helpViewer"));
        setAttribute(Qt::WA_QuitOnClose, false);
        resize(560, 480);
        m_page->setObjectName(QStringLiteral("helpPage"));
        m_page->setOpenExternalLinks(true);

        auto *bar = new QHBoxLayout;
        QToolButton *back = addButton(bar, QApplication::tr("Back"), QStyle::SP_ArrowBack);
        QToolButton *forward = addButton(bar, QApplication::tr("Forward"), QStyle::SP_ArrowForward);
        bar->addStretch();
        auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
        auto *layout = new QVBoxLayout(this);
        layout->addLayout(bar);
        layout->addWidget(m_page);
        layout->addWidget(buttons);

        back->setShortcut(QKeySequence::Back);
        forward->setShortcut(QKeySequence::Forward);
        buttons->button(QDialogButtonBox::Close)->setShortcut(Qt::Key_Escape);
        connect(back, &QToolButton::clicked, m_page, &QTextBrowser::backward);
        connect(forward, &QToolButton::clicked, m_page, &QTextBrowser::forward);
        connect(m_page, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
        connect(m_page, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
        connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
        connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::showTitle);
    }

    void go(const QString &book, const QUrl &page) {
        m_book = book;
        m_page->setSource(page);
        showTitle();
        show();
        raise();
        activateWindow();
    }
    QUrl page() const { return m_page->source(); }

private:
    QToolButton *addButton(QLayout *bar, const QString &name, QStyle::StandardPixmap icon) {
        auto *button = new QToolButton;
        button->setIcon(style()->standardIcon(icon));
        button->setToolTip(name);
        button->setAccessibleName(name);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setEnabled(false);
        bar->addWidget(button);
        return button;
    }
    void showTitle() {
        const QString title = m_page->documentTitle();
        setWindowTitle(title.isEmpty() || title == m_book
                           ? m_book
                           : QStringLiteral("%1 \u2013 %2").arg(title, m_book));
    }

    QTextBrowser *m_page;
    QString m_book;
};

HelpWindow *viewer = nullptr;

HelpWindow &viewerWindow() {
    if (!viewer) {
        viewer = new HelpWindow;
        qAddPostRoutine([] { // views must go before the application
            delete viewer;
            viewer = nullptr;
        });
    }
    return *viewer;
}

} // namespace

int32_t AHRegisterHelpBook(const Bundle &bundle) {
    const QString folder = bookFolder(bundle);
    if (folder.isNull())
        return kMissing;
    QStringList titles;
    const auto addTitle = [&titles](const QVariant &title) {
        if (!title.toString().isEmpty() && !titles.contains(title.toString()))
            titles += title.toString();
    };
    addTitle(bundle.infoValue(QStringLiteral("CFBundleHelpBookName")));
    for (const QVariant &title : bundle.infoValue(QStringLiteral("HelpBookTitles")).toMap())
        addTitle(title);
    help_books::add({bundle.identifier(), bundle.directory(), QUrl::fromLocalFile(folder), titles});
    return 0;
}

int32_t AHGotoPage(const QString &book, const QString &page, const QString &anchor) {
    const auto found = help_books::find(book);
    const auto bundle = found ? Bundle::open(found->bundleDirectory) : nullptr;
    if (!bundle)
        return kMissing;
    const QString path =
        page.isNull() ? firstPage(*bundle) : bundle->resourcePath(page, {}, kHelpFolder);
    if (path.isNull())
        return kMissing;
    QUrl url = QUrl::fromLocalFile(path);
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    viewerWindow().go(book, url);
    return 0;
}

QString helpViewerPreferencePath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/pde-help-viewer.plist");
}

QWidget *helpViewerWindow() {
    return viewer;
}

QUrl helpViewerPage() {
    return viewer ? viewer->page() : QUrl();
}
