#include "panel_fixture.h"

#include "controls/static_text_family.h"
#include "platform/bundle.h"
#include "platform/kernel_release.h"
#include "platform/views/slider_view.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

/// A bundle with nothing but its version.
std::shared_ptr<Bundle> bundleWithVersion(const QTemporaryDir &folder) {
    QDir(folder.path()).mkpath("Resources");
    QFile info(folder.filePath("Info.json"));
    EXPECT_TRUE(info.open(QIODevice::WriteOnly));
    info.write(R"({"CFBundleIdentifier": "test.version", "CFBundleVersion": "2.5 Build 7"})");
    info.close();
    return Bundle::open(folder.path());
}

class StaticTextTest : public PanelTest {
protected:
    void SetUp() override {
        open("");
        bundle = bundleWithVersion(folder);
        ASSERT_TRUE(bundle);
    }
    void TearDown() override { setKernelRelease("19.6.0"); }

    QTemporaryDir folder;
    std::shared_ptr<Bundle> bundle;
};

TEST_F(StaticTextTest, VersionIsHiddenUntilItIsAskedFor) {
    for (const bool cacheReadable : {true, false}) {
        auto *label = view<TextView>(1);
        VersionStringSTextKRVImageOptions version;
        version.CreateControl(label, nullptr, cacheReadable);
        version.InitializeCtrl(bundle.get(), ppd.get());
        EXPECT_TRUE(views::isHidden(label));
        EXPECT_EQ(label->stringValue(), "");
        version.ReInitializeCtrl(bundle.get(), ppd.get());
        EXPECT_EQ(label->stringValue(), cacheReadable ? "Ver.2.5.7" : "Ver.2.5.7.");
        views::setHidden(label, false);
        version.ResetStatus();
        EXPECT_FALSE(views::isHidden(label));
        setKernelRelease("10.8.0");
        version.ResetStatus();
        EXPECT_TRUE(views::isHidden(label));
        setKernelRelease("19.6.0");
    }
}

TEST_F(StaticTextTest, TitleFollowsBeingDisabledAndIgnoresProductRemoval) {
    auto *label = view<TextView>(1);
    StaticTextEditControlKRVImageOptions text;
    text.CreateControl(label, nullptr, nullptr, nullptr, QString(), nullptr, "Some Key");
    EXPECT_TRUE(text.InitializeTitle(nullptr));
    EXPECT_EQ(label->stringValue(), "");
    EXPECT_TRUE(text.InitializeCtrl(bundle.get(), nullptr));
    EXPECT_EQ(label->stringValue(), "no translation");
    text.PPDCtrlHide();
    EXPECT_FALSE(views::isHidden(label));
    const auto colour = [label] {
        return label->palette().color(QPalette::Active, QPalette::WindowText);
    };
    const QColor normal = colour();
    text.Disable();
    EXPECT_FALSE(views::isEnabled(label));
    EXPECT_NE(colour(), normal);
    text.Enable();
    EXPECT_EQ(colour(), normal);
    text.Disable();
    text.ResetStatus();
    EXPECT_TRUE(views::isEnabled(label));
    EXPECT_EQ(colour(), normal);
    EXPECT_TRUE(text.SetExternalValueToUI(nullptr, 0));
    EXPECT_TRUE(text.SetExternalValueToUI("\xC3\xA4 <b>&", 6));
    EXPECT_EQ(label->stringValue(), QString::fromUtf8("\xC3\xA4 <b>&"));
}

/// A panel that has a brightness slider.
class SliderPanel : public BasePrintPanelKRVImageOptions {
public:
    BaseControlKRVImageOptions *getbrightnessSlider() const override { return slider; }
    BaseControlKRVImageOptions *slider = nullptr;
};

TEST_F(StaticTextTest, BrightnessEndsAreHalfTheSlidersRange) {
    SliderPanel owner;
    auto *low = view<TextView>(1);
    auto *high = view<TextView>(2);
    BrightMiniSTextCtrlKRV mini;
    BrightMaxSTextCtrlKRV max;
    mini.CreateControl(low, nullptr, nullptr, nullptr, QString(), nullptr, "Low");
    max.CreateControl(high, nullptr, nullptr, nullptr, QString(), nullptr, "High");
    EXPECT_FALSE(mini.InitializeTitle(bundle.get()));
    mini.SetParenetPanel(&owner);
    max.SetParenetPanel(&owner);
    EXPECT_FALSE(mini.InitializeTitle(bundle.get()));
    auto *bar = view<SliderView>(102);
    RecordingControl slider(bar, nullptr, QString());
    owner.slider = &slider;
    bar->setMinValue(-2);
    bar->setMaxValue(3);
    EXPECT_FALSE(max.InitializeTitle(nullptr));
    EXPECT_TRUE(mini.InitializeTitle(bundle.get()));
    EXPECT_TRUE(max.InitializeTitle(bundle.get()));
    EXPECT_EQ(low->stringValue(), "-2");
    EXPECT_EQ(high->stringValue(), "+2");
}

} // namespace
