#include "panel_fixture.h"

namespace {

/// A control whose stored value may be missing, and which counts its sweeps.
class StoredControl : public RecordingControl {
public:
    StoredControl(QWidget *view, QStringList *log, const QString &name, bool stored)
        : RecordingControl(view, log, name), m_stored(stored) {}
    bool GetValueToPreset() override { return m_stored; }
    bool SetControlValueToDefault() override { return note("default"), true; }
    bool SetControlValueToUI() override { return note("show"), true; }
    bool SimulationUIEventHandler() override { return note("event"), true; }
    bool SetDefaultValueToUI() override { return note("restore"), true; }
    bool SetValueToPreference() override { return m_stored; }

private:
    bool m_stored;
};

class PanelBaseTest : public PanelTest {
protected:
    void SetUp() override {
        open("");
        child.CreatePanel(nullptr);
    }
    int32_t add(BasePrintPanelKRVImageOptions &owner, int tag, const QString &name,
                bool stored = true) {
        return owner.RunTimeAddNewControl(std::make_unique<StoredControl>(
            tag ? view<TextView>(tag) : nullptr, &log, name, stored));
    }

    BasePrintPanelKRVImageOptions child;
};

TEST_F(PanelBaseTest, TagsResolveDownwardsOnly) {
    EXPECT_EQ(panel.RunTimeAddNewWindow(&child), 0);
    EXPECT_EQ(add(panel, 1, "a"), 0);
    EXPECT_EQ(add(panel, 0, "without a view"), 1);
    EXPECT_EQ(add(panel, 2, "b"), 1) << "the one without a view has left";
    add(child, 5, "c");
    const int a = 1, c = 5, none = 6;
    EXPECT_TRUE(panel.GetPanelControl(&a) && panel.GetPanelControl(&c));
    EXPECT_TRUE(child.GetPanelControl(&c));
    EXPECT_FALSE(child.GetPanelControl(&a) || panel.GetPanelControl(&none));

    PrintSettings other;
    EXPECT_TRUE(panel.SetCurrentPrintSettings(&other, ppd.get(), host.get(), &host->session));
    EXPECT_EQ(child.GetCurrentPMPrintSettings(), &other);
    EXPECT_EQ(child.GetCurrentPrinterString(), "Queue");
    {
        BasePrintPanelKRVImageOptions second;
        second.CreatePanel(&window);
        EXPECT_EQ(panel.RunTimeAddNewWindow(&second), 1);
        second.RunTimeAddNewWindow(&child);
        EXPECT_EQ(child.GetParentWnd(), &second) << "it leaves the former parent";
        panel.Open();
    }
    EXPECT_EQ(child.GetParentWnd(), nullptr);
    EXPECT_FALSE(panel.GetPanelControl(&c));
    panel.Open();
}

TEST_F(PanelBaseTest, SweepsKeepTheirOrder) {
    EXPECT_EQ(panel.SetValueToPreference(), 0);
    add(panel, 1, "a", false);
    EXPECT_EQ(panel.SetValueToPreference(), 1);
    add(panel, 2, "b");
    EXPECT_EQ(panel.SetValueToPreference(), 0) << "the last one's reply";
    panel.RunTimeAddNewWindow(&child);
    add(child, 3, "c");
    panel.SetCurrentValueToUI();
    EXPECT_EQ(log, QStringList({"show a", "show b", "event a", "event b", "show c", "event c"}));
    log.clear();
    panel.SetDefaultValueToUI();
    EXPECT_EQ(log, QStringList({"restore a", "event a", "restore b", "event b"}))
        << "a window keeps its values";
    log.clear();
    EXPECT_TRUE(panel.GetValueFromPreset());
    EXPECT_EQ(log, QStringList({"default a"}));
}

} // namespace
