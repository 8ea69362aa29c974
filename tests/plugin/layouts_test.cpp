#include "plugin_fixture.h"

#include "platform/help_viewer.h"
#include "platform/views/modal_window.h"
#include "services/help.h"

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

namespace {

const QStringList kLanguages{"en", "de", "fr", "ja", "zh_CN"};

/// A queue for each layout, with the part of its help pages' names.
struct Layout {
    const char *sample, *help;
};
const Layout kLayouts[] = {
    {"velmora-mvo-530.ppd", "MVO530"}, {"velmora-mvo-110.ppd", "MVO110"},
    {"velmora-mvo-220.ppd", "MVO220"}, {"velmora-mvo-420.ppd", "MVO420"},
    {"sorvani-sv500.ppd", "SV500"},
};

class LayoutsTest : public PluginTest {
protected:
    void TearDown() override { Bundle::setLanguages({}); }
    /// The shown panel of a layout's queue.
    QWidget *open(const Layout &layout) {
        panel.reset();
        ppd = openSample(layout.sample);
        panel = std::move(panels(ppd.get()).at(0));
        panel->supportedPPDOptionKeys();
        QWidget *view = panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        view->adjustSize();
        view->show();
        return view;
    }

    /// Every title that is shown has the room that it needs.
    static void expectWhole(const QWidget *root) {
        for (const QWidget *view : root->findChildren<QWidget *>()) {
            const bool shown = view->isVisible() && dynamic_cast<const views::Captioned *>(view);
            const QSize needed = shown ? view->sizeHint() : QSize();
            EXPECT_EQ(view->size(), view->size().expandedTo(needed))
                << qPrintable(view->objectName());
        }
    }

    PpdPtr ppd;
    std::unique_ptr<PDEPanel> panel;
};

TEST_F(LayoutsTest, NoTextIsCutAndNothingJumps) {
    constexpr int layouts = std::size(kLayouts);
    for (int i = 0; i < layouts * kLanguages.size(); ++i) {
        const Layout &layout = kLayouts[i % layouts];
        const QString &language = kLanguages[i / layouts];
        Bundle::setLanguages({language});
        SCOPED_TRACE(layout.sample + (' ' + language.toStdString()));
        QWidget *root = open(layout);
        const auto *below = root->findChild<QWidget *>("colorbalanceButtonCtrl");
        const QRect place(below->mapTo(root, QPoint()), below->size());
        for (const char *mode : {"graphicsbasicSetRdioBtn", "graphicsadvanceSetRdioBtn"}) {
            if (auto *radio = root->findChild<RadioView *>(mode))
                radio->click();
            QApplication::processEvents();
            expectWhole(root);
            EXPECT_EQ(QRect(below->mapTo(root, QPoint()), below->size()), place) << mode;
        }
        for (const char *opener : {"colorbalanceButtonCtrl", "imageAdjustmentButtonCtrl"}) {
            QTimer::singleShot(0, root, [this] {
                if (ModalWindow *window = ModalWindow::current())
                    expectWhole(window), window->reject();
            });
            root->findChild<QAbstractButton *>(opener)->click();
            QApplication::processEvents();
        }
    }
}

TEST_F(LayoutsTest, EachLanguageHasItsTextsAndHelp) {
    QFile texts(QFileInfo(__FILE__).path() + "/../../resources/strings/Localizable_en.ts");
    ASSERT_TRUE(texts.open(QIODevice::ReadOnly));
    const QStringList rows = QString::fromUtf8(texts.readAll()).split("<source>").mid(1);
    const QString title = "Help Viewer Title for Image Options";
    EXPECT_FALSE(rows.isEmpty());
    EXPECT_EQ(RegisterMyHelpBook(), 0);
    for (const QString &language : kLanguages) {
        Bundle::setLanguages({language});
        for (const QString table : {"Localizable", "Localizable01", "Localizable02"}) {
            EXPECT_FALSE(pluginBundle->resourcePath(table + '_' + language, "qm").isNull());
            for (const QString &row : rows)
                EXPECT_FALSE(
                    pluginBundle->localizedString(row.section('<', 0, 0), {}, table).isNull())
                    << qPrintable(language + table + row);
        }
        for (const Layout &layout : kLayouts)
            for (const QString window : {"Graphics_", "ColorBalance_", "ImageAdj_"}) {
                const QString page = window + layout.help + ".htm";
                EXPECT_EQ(GotoHelpPage(pluginBundle.get(), page, "restore", title), 0);
                EXPECT_EQ(helpViewerPage().path().contains("/de/"), language == "de");
            }
    }
}

} // namespace
