#include "panel_fixture.h"
#include "text_bundle.h"

#include "controls/group_box.h"
#include "controls/slider_family.h"
#include "controls/static_text_family.h"
#include "platform/ppd_marks.h"
#include "platform/views/slider_view.h"
#include "ppd/product_type.h"

namespace {

constexpr int kSliderTag = 102, kTitleTag = 202;
const char *const kKey = "QZBrightness";

QByteArray brightness(int rows, const QByteArray &defaultChoice = {}) {
    QList<QByteArray> choices;
    for (int i = 0; i < rows; ++i)
        choices.append("Row" + QByteArray::number(i));
    return ppdOption(kKey, choices, defaultChoice, "Brightness");
}

class SliderTest : public PanelTest {
protected:
    void build(const QByteArray &body) {
        open(body);
        record = {.minValue = -5, .maxValue = 5};
        auto title = std::make_unique<PPDStaticTextCtrlKRVImageOptions>();
        titleView = view<TextView>(kTitleTag);
        title->CreateControl(titleView, kKey, nullptr, nullptr, nullptr, QString(), nullptr);
        panel.RunTimeAddNewControl(std::move(title));
        auto control = std::make_unique<GPPDSliderBarControlKRV>();
        sliderView = view<SliderView>(kSliderTag);
        control->CreateControl(sliderView, kKey, &record, nullptr, nullptr, kControlUserCurrent,
                               &kTitleTag);
        slider = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        start();
        host->calls.clear();
    }
    QString summary() {
        QVariantMap rows;
        QStringList order;
        slider->GetSummaryText(&rows, &order);
        return rows.value("Brightness").toString();
    }

    SliderBarIniData record;
    SliderView *sliderView = nullptr;
    TextView *titleView = nullptr;
    GPPDSliderBarControlKRV *slider = nullptr;
};

TEST_F(SliderTest, PositionsAreTheRowsFromTheHighestDown) {
    struct Case {
        QByteArray body;
        int half;
        int position;  // of the default
        int lowestRow; // -1: the lowest position has no row
    };
    // A custom choice comes behind the others and counts as a row.
    const QByteArray custom = "*CustomQZBrightness True: \"pop\"\n"
                              "*ParamCustomQZBrightness Level: 1 int -9 9\n";
    const Case cases[] = {
        {brightness(7, "Row3"), 3, 0, 6},
        {brightness(6, "Row4"), 3, -1, -1},
        {brightness(1), 0, 0, 0},
        {brightness(2, "Row1"), 1, 0, -1},
        {brightness(7, "Row3") + custom, 4, 1, -1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.half);
        CPPDChecker::Instance()->Init();
        build(c.body);
        EXPECT_TRUE(CPPDChecker::Instance()->checks.at(kKey));
        EXPECT_EQ(titleView->stringValue(), "Brightness:");
        EXPECT_EQ(sliderView->minValue(), -c.half);
        EXPECT_EQ(sliderView->maxValue(), c.half);
        EXPECT_EQ(record.defaultValue, c.position);
        EXPECT_EQ(sliderView->intValue(), c.position);

        const int32_t lowest = -c.half;
        slider->setExternalValueToData(&lowest, sizeof lowest, kValueTypeInteger);
        host->calls.clear();
        EXPECT_EQ(slider->SetValueToTicket(&host->settings, false), c.lowestRow >= 0);
        if (c.lowestRow < 0) {
            EXPECT_TRUE(host->calls.isEmpty());
            EXPECT_EQ(summary(), "");
            continue;
        }
        const QString sent = QStringLiteral("Row%1").arg(c.lowestRow);
        EXPECT_EQ(host->calls.last().second, sent);
        EXPECT_EQ(summary(), sent + " label");
    }
}

TEST_F(SliderTest, MoveIsMarkedAtEverySaveAndNotBefore) {
    build(brightness(7, "Row3"));
    ASSERT_TRUE(sliderView->slideTo(2));
    EXPECT_TRUE(host->calls.isEmpty());
    panel.SetValueFromUIToControl();
    for (int save = 1; save <= 2; ++save) {
        EXPECT_TRUE(slider->SetValueToTicket(&host->settings, false));
        EXPECT_EQ(host->calls.size(), save);
    }
    EXPECT_EQ(host->marked(kKey), "Row1");
    EXPECT_TRUE(host->settings.entries().isEmpty());
    host->refuses = true;
    EXPECT_FALSE(slider->SetValueToTicket(&host->settings, false));
    EXPECT_FALSE(slider->GetValueToPreset());
    host->refuses = false;

    markChoice(ppd.get(), kKey, "Row6");
    panel.Open();
    EXPECT_EQ(sliderView->intValue(), -3);
    EXPECT_EQ(slider->GetValueFromControl()->word(), -3);
}

TEST_F(SliderTest, ProgramSetsItSilentlyAndWithinItsRange) {
    build(brightness(7, "Row3"));
    int changes = 0;
    QObject::connect(sliderView, &QSlider::valueChanged, [&] { ++changes; });
    int32_t far = 40;
    EXPECT_TRUE(slider->SetExternalValueToUI(&far, sizeof far));
    EXPECT_EQ(sliderView->intValue(), 3);
    slider->SetDefaultValueToUI();
    EXPECT_EQ(sliderView->intValue(), 0);
    slider->Disable();
    EXPECT_FALSE(slider->SetExternalValueToUI(&far, sizeof far));
    EXPECT_FALSE(slider->SetExternalValueToUI(nullptr, 0));
    EXPECT_EQ(sliderView->intValue(), 0);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(summary(), "Row3 label") << "held down, and in the summary all the same";
}

TEST_F(SliderTest, InitializedAgainTheRowsAreCountedOnce) {
    build(brightness(7, "Row3"));
    slider->ReInitializeCtrl(nullptr, ppd.get());
    EXPECT_EQ(record.maxValue, 3);
    EXPECT_TRUE(slider->GetValueToPreset());
    EXPECT_EQ(slider->GetValueFromControl()->word(), 0);
}

TEST_F(SliderTest, WithoutTheOptionTheRecordsRangeStays) {
    CPPDChecker::Instance()->Init();
    build("");
    EXPECT_FALSE(CPPDChecker::Instance()->checks.at(kKey));
    EXPECT_EQ(titleView->stringValue(), "");
    EXPECT_EQ(sliderView->minValue(), -5);
    EXPECT_EQ(sliderView->maxValue(), 5);
    EXPECT_FALSE(slider->getPPDChoices());
    EXPECT_FALSE(slider->SetValueToTicket(&host->settings, false));
    EXPECT_FALSE(slider->GetValueToPreset());
    panel.Open();
    EXPECT_EQ(summary(), "");
    char buffer[256] = "x";
    EXPECT_TRUE(slider->ConvertFromPreferenceString("-4"));
    EXPECT_TRUE(slider->ConvertToPreferenceString(buffer));
    EXPECT_STREQ(buffer, "-4");
    EXPECT_TRUE(slider->InitializeCtrl(nullptr, nullptr));
    delete sliderView;
    EXPECT_FALSE(slider->SetControlValueToUI() || slider->GetValueFromUI());
}

TEST(GroupBox, TakesItsTitleFromTheBundle) {
    const TextlessBundle bundle;
    QGroupBox box("Form");
    GroupBoxControlKRVImageOptions group;
    group.CreateControl(&box, nullptr);
    EXPECT_FALSE(group.InitializeTitle(bundle.get()));
    group.CreateControl(&box, "Some Key");
    EXPECT_FALSE(group.InitializeTitle(nullptr));
    EXPECT_EQ(box.title(), "Form");
    EXPECT_TRUE(group.InitializeTitle(bundle.get()));
    EXPECT_EQ(box.title(), "no translation");
}

} // namespace
