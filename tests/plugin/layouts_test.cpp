#include "plugin_fixture.h"

#include "platform/help_viewer.h"
#include "services/help.h"

#include <QApplication>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QStringList kLanguages{"en", "de", "fr", "ja", "zh_CN"};

struct Layout {
    const char *name, *help, *sample, *lacks;
};
const Layout kLayouts[] = {
    {"Default00", "MVO530", "velmora-mvo-530.ppd", "^$"},
    {"Default01", "MVO110", "velmora-mvo-110.ppd", "RdioBtn|RGB|CMYK"},
    {"Default02", "MVO220", "velmora-mvo-220.ppd", "CMYK"},
    {"Default03", "MVO420", "velmora-mvo-420.ppd", "CMYK"},
    {"Sorvani00", "SV500", "sorvani-sv500.ppd", "RdioBtn|RGB|CMYK"},
};

QString content(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QString();
}

class LayoutsTest : public PluginTest {
protected:
    void TearDown() override { Bundle::setLanguages({}); }
    /// The shown panel of a sample whose attribute names the layout.
    QWidget *open(const Layout &layout) {
        panel.reset();
        const QString text = content(samplePath(layout.sample));
        QString body = text.mid(text.indexOf("*QZXImageOptionsSettings")); // without the head
        body.replace(QRegularExpression("^([^:]*: )\"[^\"]*\""),
                     QString("\\1\"%1-%2\"").arg(layout.name, layout.help));
        ppd = openPpdText(body.toUtf8());
        auto made = panels(ppd.get());
        if (made.empty())
            return nullptr;
        panel = std::move(made.front());
        panel->supportedPPDOptionKeys();
        QWidget *view = panel->panelView();
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        view->adjustSize();
        view->show();
        return view;
    }

    PpdPtr ppd;
    std::unique_ptr<PDEPanel> panel;
};

TEST_F(LayoutsTest, EachHasItsOutletsAndTags) {
    const QString outlets = // and their tags
        "ColorModeStaticText=201 ColorModeList=101 OutputModeStaticText=203 OutputModeList=0 "
        "BrightnessStaticText=202 BrightnessSlider=102 BrightnessMiniStaticText=0 ScreenList=109 "
        "BrightnessMaxStaticText=0 ScreenStaticText=209 ImageTypeStaticText=206 ImageTypeList=106 "
        "RGBColorCorrectionStaticText=207 RGBColorCorrectionList=107 restoredefaButton=0 "
        "CMYKColorCorrectionStaticText=208 CMYKColorCorrectionList=108 plugintypeList=0 "
        "graphicsbasicSetRdioBtn=1041 graphicsadvanceSetRdioBtn=1042 colorbalanceButtonCtrl=110 "
        "imageAdjustmentButtonCtrl=105 helpButton=0 imageOptionsVerStringSTextCtrl=0";
    for (const Layout &layout : kLayouts) {
        SCOPED_TRACE(layout.name);
        const QWidget *root = open(layout);
        ASSERT_TRUE(root);
        for (const QString &row : outlets.split(' ')) {
            const auto *view = root->findChild<QWidget *>(row.section('=', 0, 0));
            EXPECT_EQ(view == nullptr, row.contains(QRegularExpression(layout.lacks)))
                << qPrintable(row);
            EXPECT_EQ(views::tag(view), view ? row.section('=', 1).toInt() : 0) << qPrintable(row);
        }
        for (const char *hidden : {"plugintypeList", "imageOptionsVerStringSTextCtrl"})
            EXPECT_TRUE(views::isHidden(root->findChild<QWidget *>(hidden)));
        // The list's table names tags that the layout may lack; the others still follow it.
        for (const int item : {1, 0}) {
            ASSERT_TRUE(root->findChild<PopupView *>("ColorModeList")->chooseItem(item));
            EXPECT_EQ(views::isEnabled(root->findChild<QWidget *>("ImageTypeList")), item == 0);
        }
    }
}

TEST_F(LayoutsTest, NoTextIsCutAndNothingJumps) {
    for (int i = 0; i < 5 * kLanguages.size(); ++i) {
        Bundle::setLanguages({kLanguages[i / 5]});
        SCOPED_TRACE(kLayouts[i % 5].name + (' ' + kLanguages[i / 5].toStdString()));
        QWidget *root = open(kLayouts[i % 5]);
        ASSERT_TRUE(root);
        const auto *below = root->findChild<QWidget *>("colorbalanceButtonCtrl");
        const QRect place(below->mapTo(root, QPoint()), below->size());
        for (const char *mode : {"graphicsbasicSetRdioBtn", "graphicsadvanceSetRdioBtn"}) {
            if (auto *radio = root->findChild<RadioView *>(mode))
                radio->click();
            QApplication::processEvents();
            for (const QWidget *view : root->findChildren<QWidget *>()) {
                const bool shown =
                    view->isVisible() && dynamic_cast<const views::Captioned *>(view);
                const QSize needed = shown ? view->sizeHint() : QSize();
                EXPECT_EQ(view->size(), view->size().expandedTo(needed))
                    << qPrintable(view->objectName());
            }
            EXPECT_EQ(QRect(below->mapTo(root, QPoint()), below->size()), place) << mode;
        }
    }
}

TEST_F(LayoutsTest, EachLanguageHasItsTextsAndHelp) {
    const QString path = QFileInfo(__FILE__).path() + "/../../resources/strings/Localizable_en.ts";
    const QStringList rows = content(path).split("<source>").mid(1);
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
