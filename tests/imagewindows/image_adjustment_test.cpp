// What no sample queue shows; tests/scenarios/image_adjustment*.scenario have the rest.

#include "main_panel_fixture.h"

#include "imagewindows/image_adjustment_window.h"
#include "platform/views/text_view.h"
#include "services/bundle_identity.h"

#include <QTemporaryFile>
#include <QTimer>

namespace {

class ImageAdjustmentTest : public MainPanelTest {
protected:
    void SetUp() override { pluginBundle = Bundle::open(QStringLiteral(BUNDLE_DIR)); }
    void TearDown() override { pluginBundle.reset(); }
    template <class Window>
    void build(size_t controls, const QByteArray &body) {
        auto &adjustment = static_cast<Window &>(*(window = std::make_unique<Window>()));
        open(body);
        form = adjustment.loadWindow(pluginBundle.get());
        adjustment.setPluginTypeRecord(&type);
        adjustment.CreatePanel(form, "Image Type Window Title String");
        panel.RunTimeAddNewWindow(&adjustment);
        start();
        panel.Open();
        EXPECT_EQ(window->getCtrlGroupArrayRef()->size(), controls) << "a view is missing";
        for (const TextView *title : form->findChildren<TextView *>())
            EXPECT_EQ(title->buddy(), list(views::tag(title) - 10));
    }
    PopupView *list(int tag) { return menu(window->GetPanelControl(&tag)); }

    const QByteArray paper = ppdOption("QZCMYKCorrectionTarget", {"A", "B"});
    const char *const types[6] = {"1", "2", "3", "4", "5"};
    PopupIniData type{.defaultValue = 1, .iniValue = -1, .menuKeys = types};
    QPointer<ModalWindow> form;
};

TEST_F(ImageAdjustmentTest, FollowsProductTypeAndCacheFile) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open() && file.write("ImageOptionPDETiger\nQZCMYKCorrectionTarget:B@0@0@0@"));
    const QByteArray cache = "*QZXCDFSetting: \"" + file.fileName().toUtf8() + "\"\n";
    file.close();
    for (; type.defaultValue <= 5; ++type.defaultValue) {
        build<ImageAdjustmentWndKRV>(17, cache + ppdOption("QZX", {"A"}) + paper);
        EXPECT_EQ(views::isHidden(list(506)), type.defaultValue == 4) << type.defaultValue;
        EXPECT_FALSE(views::isHidden(list(506)->parentWidget())) << "the group of paper alone";
        EXPECT_TRUE(list(506)->isItemEnabled(0) && !list(506)->isItemEnabled(1)) << "by the file";
    }
}

TEST_F(ImageAdjustmentTest, InertAndBuiltAgain) {
    ImageAdjustmentWndKRV inert;
    inert.CreatePanel(inert.loadWindow(nullptr), "Title");
    EXPECT_EQ(inert.InitializeUserPane(nullptr, nullptr) + inert.ActivateWindow(), 0);
    build<ImageAdjustmentInvalidateColorProfileWndKRV>(18, "");
    build<ImageAdjustmentBlackOverWndKRV>(18, "*QZLocalizableFileIndex: \"77\"\n" + paper);
    EXPECT_EQ(form->windowTitle(), "no translation") << "from the table that the queue names";
    QTimer::singleShot(0, form, [this] { list(506)->chooseItem(1), window.reset(); });
    window->ActivateWindow();
    EXPECT_TRUE(!form && host->marked("QZCMYKCorrectionTarget") == "B") << "went with the window";
    build<ImageAdjustmentWndKRV>(17, "");
    window->terminate();
    EXPECT_EQ(window->ActivateWindow(), 0) << "opens nothing, since no button could end it";
    delete form; // as a window does that it stood in
    EXPECT_TRUE(static_cast<ImageAdjustmentWindow &>(*window).loadWindow(pluginBundle.get()));
}

} // namespace
