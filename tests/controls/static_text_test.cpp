#include "panel_fixture.h"

#include "controls/static_text_family.h"
#include "platform/views/slider_view.h"

namespace {

class StaticTextTest : public PanelTest {
protected:
    void SetUp() override { open(""); }

    TextView label, other;
};

TEST_F(StaticTextTest, VersionIsHiddenUntilItIsAskedFor) {
    for (const bool cacheReadable : {true, false}) {
        setKernelRelease("19.6.0");
        VersionStringSTextKRVImageOptions version;
        version.CreateControl(&label, nullptr, cacheReadable);
        version.InitializeCtrl(bundle.get(), ppd.get());
        EXPECT_TRUE(views::isHidden(&label));
        version.ReInitializeCtrl(bundle.get(), ppd.get());
        EXPECT_EQ(label.stringValue(), cacheReadable ? "Ver.2.5.7" : "Ver.2.5.7.");
        views::setHidden(&label, false);
        version.ResetStatus();
        EXPECT_FALSE(views::isHidden(&label));
        setKernelRelease("10.8.0");
        version.ResetStatus();
        EXPECT_TRUE(views::isHidden(&label));
    }
}

TEST_F(StaticTextTest, TitleFollowsBeingDisabledAndIgnoresProductRemoval) {
    StaticTextEditControlKRVImageOptions text;
    text.CreateControl(&label, nullptr, nullptr, nullptr, QString(), nullptr, "Some Key");
    EXPECT_TRUE(text.InitializeCtrl(bundle.get(), nullptr));
    EXPECT_EQ(label.stringValue(), "no translation");
    text.PPDCtrlHide();
    EXPECT_FALSE(views::isHidden(&label));
    const auto colour = [this] {
        return label.palette().color(QPalette::Active, QPalette::WindowText);
    };
    const QColor normal = colour();
    for (const auto release :
         {&BaseControlKRVImageOptions::Enable, &BaseControlKRVImageOptions::ResetStatus}) {
        text.Disable();
        EXPECT_FALSE(views::isEnabled(&label));
        EXPECT_NE(colour(), normal);
        (text.*release)();
        EXPECT_TRUE(views::isEnabled(&label));
        EXPECT_EQ(colour(), normal);
    }
    EXPECT_TRUE(text.SetExternalValueToUI("\xC3\xA4 <b>&", 6));
    EXPECT_EQ(label.stringValue(), QString::fromUtf8("\xC3\xA4 <b>&"));
}

/// A panel that has a brightness slider.
class SliderPanel : public BasePrintPanelKRVImageOptions {
public:
    BaseControlKRVImageOptions *getbrightnessSlider() const override { return slider; }
    BaseControlKRVImageOptions *slider = nullptr;
};

TEST_F(StaticTextTest, BrightnessEndsAreHalfTheSlidersRange) {
    SliderPanel owner;
    BrightMiniSTextCtrlKRV mini;
    BrightMaxSTextCtrlKRV max;
    mini.CreateControl(&label, nullptr, nullptr, nullptr, QString(), nullptr, "Low");
    max.CreateControl(&other, nullptr, nullptr, nullptr, QString(), nullptr, "High");
    mini.SetParenetPanel(&owner);
    max.SetParenetPanel(&owner);
    SliderView bar;
    RecordingControl slider(&bar, &log, "slider");
    owner.slider = &slider;
    bar.setMinValue(-2);
    bar.setMaxValue(3);
    EXPECT_TRUE(mini.InitializeTitle(bundle.get()) && max.InitializeTitle(bundle.get()));
    EXPECT_EQ(label.stringValue(), "-2");
    EXPECT_EQ(other.stringValue(), "+2");
}

} // namespace
