#include "panel_fixture.h"

#include "controls/slider_family.h"
#include "controls/static_text_family.h"
#include "platform/views/slider_view.h"

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
        keep(std::move(title));
        auto made = std::make_unique<GPPDSliderBarControlKRV>();
        sliderView = view<SliderView>(kSliderTag);
        made->CreateControl(sliderView, kKey, &record, nullptr, nullptr, kControlUserCurrent,
                            &kTitleTag);
        slider = keep(std::move(made));
        start();
    }

    SliderBarIniData record;
    SliderView *sliderView = nullptr;
    TextView *titleView = nullptr;
    GPPDSliderBarControlKRV *slider = nullptr;
};

TEST_F(SliderTest, PositionsAreTheRowsFromTheHighestDown) {
    // A custom choice comes behind the others and counts as a row.
    const QByteArray custom = "*CustomQZBrightness True: \"pop\"\n"
                              "*ParamCustomQZBrightness Level: 1 int -9 9\n";
    const struct {
        QByteArray body;
        int half;
        int position;     // of the default
        QString atLowest; // null: the lowest position has no row
    } cases[] = {
        {brightness(7, "Row3"), 3, 0, "Row6"},
        {brightness(6, "Row4"), 3, -1, {}},
        {brightness(1), 0, 0, "Row0"},
        {brightness(2, "Row1"), 1, 0, {}},
        {brightness(7, "Row3") + custom, 4, 1, {}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.half);
        build(c.body);
        EXPECT_TRUE(reported(kKey));
        EXPECT_EQ(titleView->stringValue(), "Brightness:");
        EXPECT_EQ(sliderView->minValue(), -c.half);
        EXPECT_EQ(sliderView->maxValue(), c.half);
        EXPECT_EQ(record.defaultValue, c.position);
        EXPECT_EQ(sliderView->intValue(), c.position);

        const int32_t lowest = -c.half;
        slider->setExternalValueToData(&lowest, sizeof lowest, kValueTypeInteger);
        const bool hasRow = !c.atLowest.isNull();
        EXPECT_EQ(save(slider), hasRow);
        EXPECT_EQ(host->calls, hasRow ? Calls({{kKey, c.atLowest}}) : Calls());
        EXPECT_EQ(summary().join(""), hasRow ? "Brightness=" + c.atLowest + " label" : "");
    }
}

TEST_F(SliderTest, RefusalsAndValuesFromOutside) {
    build(brightness(7, "Row3"));
    host->refuses = true;
    EXPECT_FALSE(save(slider) || slider->GetValueToPreset());
    host->refuses = false;
    slider->ReInitializeCtrl(nullptr, ppd.get());
    EXPECT_EQ(record.maxValue, 3) << "the rows are counted once";
    const int32_t far = 40;
    EXPECT_TRUE(slider->SetExternalValueToUI(&far, sizeof far));
    EXPECT_EQ(sliderView->intValue(), 3);
    slider->Disable();
    slider->SetDefaultValueToUI();
    EXPECT_EQ(sliderView->intValue(), 3) << "a disabled slider takes no value from outside";
    EXPECT_EQ(summary().size(), 1) << "and stays in the summary all the same";
}

TEST_F(SliderTest, WithoutTheOptionTheRecordsRangeStays) {
    build("");
    EXPECT_FALSE(reported(kKey));
    EXPECT_EQ(sliderView->maxValue(), 5);
    EXPECT_FALSE(save(slider) || slider->GetValueToPreset());
    panel.Open();
    EXPECT_EQ(summary(), QStringList());

    build(brightness(3));
    EXPECT_EQ(titleView->stringValue(), "Brightness:");
    slider->InitializeCtrl(nullptr, openPpdText("").get());
    EXPECT_EQ(titleView->stringValue(), "") << "no title of a former PPD";
}

} // namespace
