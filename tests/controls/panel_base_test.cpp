#include "panel_fixture.h"

namespace {

/// A control whose stored value may be missing, and which counts its sweeps.
class StoredControl : public RecordingControl {
public:
    StoredControl(QWidget *view, QStringList *log, const QString &name, bool stored)
        : RecordingControl(view, log, name), m_log(log), m_name(name), m_stored(stored) {}
    bool GetValueToPreset() override { return m_stored; }
    bool SetControlValueToDefault() override { return m_log->append("default " + m_name), true; }
    bool SetControlValueToUI() override { return m_log->append("show " + m_name), true; }
    bool SimulationUIEventHandler() override { return m_log->append("event " + m_name), true; }
    bool SetDefaultValueToUI() override { return m_log->append("restore " + m_name), true; }
    bool SetValueToPreference() override { return m_stored; }

private:
    QStringList *m_log;
    QString m_name;
    bool m_stored;
};

class PanelBaseTest : public PanelTest {
protected:
    void SetUp() override { open(""); }
    int32_t add(BasePrintPanelKRVImageOptions &owner, QWidget *view, const QString &name,
                bool stored = true) {
        return owner.RunTimeAddNewControl(
            std::make_unique<StoredControl>(view, &log, name, stored));
    }
};

TEST_F(PanelBaseTest, ControlWithoutAViewLeavesThePanel) {
    EXPECT_EQ(add(panel, view<TextView>(1), "a"), 0);
    EXPECT_EQ(add(panel, nullptr, "none"), 1);
    EXPECT_EQ(add(panel, view<TextView>(2), "b"), 1);
    EXPECT_EQ(panel.getCtrlGroupArrayRef()->size(), 2u);
    RecordingControl *field = nullptr;
    panel.adopt(field, std::make_unique<RecordingControl>(nullptr, &log, "gone"));
    EXPECT_FALSE(field);
}

TEST_F(PanelBaseTest, TagsResolveDownwardsOnly) {
    BasePrintPanelKRVImageOptions child;
    child.CreatePanel(nullptr);
    EXPECT_EQ(panel.RunTimeAddNewWindow(&child), 0);
    add(panel, view<TextView>(1), "a");
    add(child, view<TextView>(5), "c");
    const int a = 1, c = 5, none = 6;
    EXPECT_TRUE(panel.GetPanelControl(&a));
    EXPECT_TRUE(panel.GetPanelControl(&c));
    EXPECT_TRUE(child.GetPanelControl(&c));
    EXPECT_FALSE(child.GetPanelControl(&a));
    EXPECT_FALSE(panel.GetPanelControl(&none));
    EXPECT_FALSE(panel.GetPanelControl(nullptr));
    EXPECT_EQ(child.GetParentWnd(), &panel);

    PrintSettings other;
    EXPECT_TRUE(panel.SetCurrentPrintSettings(&other, ppd.get(), host.get(), &host->session));
    EXPECT_EQ(child.GetCurrentPMPrintSettings(), &other);
    EXPECT_EQ(child.GetCurrentPrinterString(), "Queue");
    EXPECT_FALSE(panel.SetCurrentPrintSettings(&host->settings, ppd.get(), host.get(), nullptr));
    EXPECT_EQ(panel.GetCurrentPMPrintSettings(), &host->settings) << "stored before the failure";
    EXPECT_EQ(child.GetCurrentPMPrintSettings(), &other) << "not reached any more";
}

TEST_F(PanelBaseTest, SweepsKeepTheirOrder) {
    BasePrintPanelKRVImageOptions child;
    child.CreatePanel(nullptr);
    panel.RunTimeAddNewWindow(&child);
    add(panel, view<TextView>(1), "a", false);
    add(panel, view<TextView>(2), "b");
    add(child, view<TextView>(3), "c");

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

TEST_F(PanelBaseTest, PreferenceSweepAnswersForTheLast) {
    EXPECT_EQ(panel.SetValueToPreference(), 0);
    add(panel, view<TextView>(1), "a", true);
    EXPECT_EQ(panel.SetValueToPreference(), 0);
    add(panel, view<TextView>(2), "b", false);
    EXPECT_EQ(panel.SetValueToPreference(), 1);
    BasePrintPanelKRVImageOptions child;
    child.CreatePanel(nullptr);
    panel.RunTimeAddNewWindow(&child);
    EXPECT_EQ(panel.SetValueToPreference(), 0) << "the window's reply";
}

TEST_F(PanelBaseTest, NothingBeforeCreatePanelAndAfterTerminate) {
    BasePrintPanelKRVImageOptions early;
    PrintSettings settings;
    QVariantMap rows;
    QStringList order;
    const auto sweepAll = [&](BasePrintPanelKRVImageOptions &owner) {
        owner.Open();
        owner.Close();
        owner.GetSummaryText(&rows, &order);
        owner.InitializeUserPane(nullptr, ppd.get());
        owner.SetCurrentValueToUI();
        owner.SetValueFromUIToControl();
        owner.ResetControlStatus();
        EXPECT_EQ(owner.SetValueToTicket(&settings, false), 0);
        EXPECT_EQ(owner.SetValueToPreference(), 0);
        EXPECT_EQ(add(owner, view<TextView>(9), "late"), 0);
        EXPECT_FALSE(owner.getCtrlGroupArrayRef());
    };
    sweepAll(early);
    panel.terminate();
    sweepAll(panel);
    EXPECT_TRUE(order.isEmpty());
}

} // namespace
