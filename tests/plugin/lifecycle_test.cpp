#include "plugin_fixture.h"

#include "controls/button_family.h"
#include "imagewindows/popup_window.h"
#include "platform/kernel_release.h"
#include "platform/preferences.h"

namespace {

/// The main panel, with its sweeps counted.
class CountingPanel : public ImageOptionsPDEk27 {
public:
    void CreatePanel(QWidget *window) override {
        ++created;
        ImageOptionsPDEk27::CreatePanel(window);
    }
    int32_t SetUIDataToIniData() override {
        ++initial;
        return ImageOptionsPDEk27::SetUIDataToIniData();
    }
    int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) override {
        ++conflicts;
        return ImageOptionsPDEk27::UpdateConflictsPanelControlFromPPD(ppd);
    }
    int32_t SetValueToTicket(PMPrintSettings settings, bool withParam) override {
        ++writes;
        return ImageOptionsPDEk27::SetValueToTicket(settings, withParam);
    }
    int32_t Open() override {
        syncWhileOpen = GetPDEStatus();
        return ImageOptionsPDEk27::Open();
    }

    int created = 0, initial = 0, conflicts = 0, writes = 0;
    bool syncWhileOpen = false;
};

class LifecycleTest : public PluginTest {
protected:
    void SetUp() override {
        PluginTest::SetUp();
        ppd = openSample("velmora-mvo-530.ppd");
        ASSERT_TRUE(ppd);
        host = std::make_shared<TestHost>(ppd.get());
    }
    void TearDown() override { setKernelRelease("19.6.0"); }
    std::unique_ptr<CountingPanel> newPanel() const {
        auto panel = std::make_unique<CountingPanel>();
        panel->initWithCallback(host);
        panel->bFirstInitialzePDE = true;
        return panel;
    }

    /// A panel that the host has restored.
    std::unique_ptr<CountingPanel> openedPanel() const {
        auto panel = newPanel();
        panel->supportedPPDOptionKeys();
        panel->restoreValuesAndReturnError(nullptr);
        return panel;
    }
    static PopupView *list(CountingPanel &panel, int tag) {
        return qobject_cast<PopupView *>(panel.GetPanelControl(&tag)->GetControlPtr());
    }

    PpdPtr ppd;
    std::shared_ptr<TestHost> host;
};

TEST_F(LifecycleTest, SequencesOfCalls) {
    struct Row {
        const char *calls; // k keys, r restore, w willShow, p shouldPrint, s save, i summary
        int created, initial, conflicts, writes;
        bool printing, pairOpen, sync;
    };
    // A panel that shouldPrint builds stays in the state of being synchronised until it is shown.
    const Row rows[] = {
        {"k", 0, 0, 0, 0, false, false, false},     {"ks", 0, 0, 0, 1, true, false, false},
        {"kr", 1, 1, 0, 0, false, false, false},    {"krr", 1, 1, 1, 0, false, false, false},
        {"kp", 1, 1, 0, 1, true, true, true},       {"kps", 1, 1, 0, 1, true, false, true},
        {"kpw", 1, 1, 0, 1, true, true, false},     {"kpps", 1, 1, 0, 2, true, false, true},
        {"krwss", 1, 1, 0, 2, true, false, false},  {"krwps", 1, 1, 0, 1, true, false, false},
        {"krwpss", 1, 1, 0, 2, true, false, false}, {"wi", 0, 0, 0, 0, false, false, false},
    };
    for (const Row &row : rows) {
        const auto panel = newPanel();
        for (const char *call = row.calls; *call; ++call)
            switch (*call) {
            case 'k':
                EXPECT_EQ(panel->supportedPPDOptionKeys().size(), 26);
                break;
            case 'r':
                EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
                break;
            case 'w':
                panel->willShow();
                EXPECT_TRUE(panel->syncWhileOpen);
                break;
            case 'p':
                EXPECT_TRUE(panel->shouldPrint());
                break;
            case 's':
                EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
                break;
            case 'i':
                EXPECT_TRUE(panel->summaryInfo().contains("Summary Display Order"));
                break;
            }
        EXPECT_EQ(panel->created, row.created) << row.calls;
        EXPECT_EQ(panel->initial, row.initial) << row.calls;
        EXPECT_EQ(panel->conflicts, row.conflicts) << row.calls;
        EXPECT_EQ(panel->writes, row.writes) << row.calls;
        EXPECT_EQ(panel->gbIsPrint, row.printing) << row.calls;
        EXPECT_EQ(panel->isShouldPrintCalled, row.pairOpen) << row.calls;
        EXPECT_EQ(panel->GetPDEStatus(), row.sync) << row.calls;
    }
}

TEST_F(LifecycleTest, WithoutAPpdALaterRestoreBuilds) {
    host->ppd = nullptr;
    const auto panel = newPanel();
    EXPECT_EQ(panel->supportedPPDOptionKeys().size(), 26);
    EXPECT_FALSE(panel->Getxppd());
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel->created, 0);
    EXPECT_EQ(panel->summaryInfo().size(), 1);
    EXPECT_TRUE(panel->shouldShowHelp());
    host->ppd = ppd.get();
    panel->supportedPPDOptionKeys();
    EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
    EXPECT_EQ(panel->created, 1);
}

TEST_F(LifecycleTest, ReplacedPpdIsResolvedAgain) {
    const PpdPtr other = openPpdText(ppdOption("QZColorMode", {"Color", "Black"}, "Black") +
                                     ppdOption("QZRGBImageType", {"Auto", "Photo"}, "Photo") +
                                     "*UIConstraints: *QZColorMode Black *QZRGBImageType Photo\n");
    for (const bool built : {true, false}) { // or only its keys asked for
        SCOPED_TRACE(built);
        host->ppd = ppd.get();
        const auto panel = built ? openedPanel() : newPanel();
        panel->supportedPPDOptionKeys();
        host->ppd = other.get();
        EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
        panel->willShow();
        EXPECT_EQ(list(*panel, 101)->indexOfSelectedItem(), 1);
        EXPECT_FALSE(views::isEnabled(list(*panel, 106)));
        EXPECT_TRUE(list(*panel, 106)->isItemEnabled(0));
        EXPECT_FALSE(list(*panel, 106)->isItemEnabled(1));
        EXPECT_TRUE(views::isHidden(list(*panel, 109)));
        EXPECT_EQ(host->marked("QZRGBImageType"), "Photo");

        host->ppd = ppd.get();
        panel->restoreValuesAndReturnError(nullptr);
        EXPECT_TRUE(views::isEnabled(list(*panel, 106)));
        EXPECT_TRUE(list(*panel, 106)->isItemEnabled(1));
        EXPECT_FALSE(views::isHidden(list(*panel, 109)));
        EXPECT_EQ(panel->created, 1);
    }
}

TEST_F(LifecycleTest, NothingOfAReplacedPpdLives) {
    markChoice(ppd.get(), "QZColorMode", "Black");
    markChoice(ppd.get(), "QZRGBImageType", "Photo");
    const auto panel = openedPanel();
    const PopupView *types = list(*panel, 106);
    const auto *title = panel->panelView()->findChild<TextView *>("ImageTypeStaticText");
    const auto colour = [title] {
        return title->palette().color(QPalette::Active, QPalette::WindowText);
    };
    const QColor dimmed = colour();
    EXPECT_FALSE(views::isEnabled(types));

    // Without the colour mode, and with a default that is no choice.
    const PpdPtr other = openPpdText("*OpenUI *QZRGBImageType/Kind: PickOne\n"
                                     "*DefaultQZRGBImageType: Unknown\n"
                                     "*QZRGBImageType A/A: \"\"\n*QZRGBImageType B/B: \"\"\n"
                                     "*CloseUI: *QZRGBImageType\n");
    host->ppd = other.get();
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_TRUE(views::isHidden(list(*panel, 101)));
    EXPECT_TRUE(views::isEnabled(types)) << "a hidden list must not hold others down";
    EXPECT_TRUE(views::isEnabled(title));
    EXPECT_NE(colour(), dimmed);
    EXPECT_EQ(types->indexOfSelectedItem(), 0);
}

TEST_F(LifecycleTest, WindowsOfAReplacedPpdShowWhatItHas) {
    // The 110 and the 420 have the plain window, the 530 another; the 110 lacks most of its lists.
    const auto panel = openedPanel();
    std::vector<PpdPtr> ppds;
    for (const char *queue : {"110", "530", "420", "110", "420"}) {
        const bool rebuilds = ppds.size() == 4; // the host has destroyed the view
        if (rebuilds)
            delete panel->panelView();
        ppds.push_back(openSample(QStringLiteral("velmora-mvo-%1.ppd").arg(queue)));
        host->ppd = ppds.back().get();
        panel->restoreValuesAndReturnError(nullptr);
        ASSERT_TRUE(panel->Getxppd());
        EXPECT_EQ(views::isHidden(list(*panel, 502)), !qstrcmp(queue, "110")) << queue;
        EXPECT_EQ(panel->GetPanelControl(&ControlBlackOverPrintCheckBoxTag) != nullptr,
                  !qstrcmp(queue, "530"));
        EXPECT_EQ(panel->getImageAdjustmentWnd()->GetParentWnd() != nullptr,
                  qstrcmp(queue, "530") != 0);
    }
    EXPECT_EQ(panel->created, 2);
}

TEST_F(LifecycleTest, NameWithoutItsStringsTable) {
    const PpdPtr other = openPpdText("*QZLocalizableFileIndex: \"77\"\n");
    host->ppd = other.get();
    EXPECT_EQ(newPanel()->panelName(), "no translation");
}

TEST_F(LifecycleTest, HelpPageWithoutAProduct) {
    ButtonView view;
    GHelpButtonKRV button;
    button.CreateControlWithHelpName(&view, "Graphics.htm");
    button.CreateControlWithHelpName(&view, "Other.htm");
    EXPECT_TRUE(button.InitializeCtrl(nullptr, openPpdText("").get()));
    EXPECT_EQ(button.helpFileName(), "Graphics.htm");
}

TEST_F(LifecycleTest, PrintTypeTellsAMailboxJob) {
    const auto panel = newPanel();
    panel->supportedPPDOptionKeys();
    EXPECT_FALSE(panel->IsJobTypeMailbox()) << "no printer yet";
    panel->restoreValuesAndReturnError(nullptr);
    const QString key = QStringLiteral("Queuecom.velmora.mvo.printsettings.PrintTypeReference");
    host->settings.set(key, "5", false);
    EXPECT_TRUE(panel->IsJobTypeMailbox());
    setKernelRelease("10.8.0");
    EXPECT_FALSE(panel->IsJobTypeMailbox()) << "older systems keep it in the preferences";
    using namespace preferences;
    for (const QString &value : {QStringLiteral("5"), QString()}) {
        CFPreferencesSetValue(key, value, kCFPreferencesAnyApplication, kCFPreferencesCurrentUser,
                              kCFPreferencesCurrentHost);
        EXPECT_EQ(panel->IsJobTypeMailbox(), !value.isNull());
    }
}

TEST_F(LifecycleTest, ColourIsAvailableUnlessBlackIsCommitted) {
    const auto panel = newPanel();
    EXPECT_FALSE(panel->IsColorModeAvailable()) << "no controls";
    EXPECT_FALSE(panel->IsAdvancedSettingAvailable());
    EXPECT_FALSE(panel->IsColorBalanceAdjustmentAvailable());
    panel->supportedPPDOptionKeys();
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_TRUE(panel->IsColorModeAvailable());
    ASSERT_TRUE(list(*panel, 101)->chooseItem(1));
    EXPECT_TRUE(panel->IsColorModeAvailable()) << "chosen, not committed";
    panel->saveValuesAndReturnError(nullptr);
    EXPECT_FALSE(panel->IsColorModeAvailable());
}

TEST_F(LifecycleTest, HostMayDestroyTheViewFirst) {
    const auto panel = openedPanel();
    const QVariantMap summary = panel->summaryInfo();
    EXPECT_GT(summary.size(), 6);
    delete panel->panelView();
    EXPECT_TRUE(panel->shouldPrint());
    EXPECT_EQ(panel->summaryInfo(), summary) << "values stay";
    // A new view is built anew by the next restore.
    panel->restoreValuesAndReturnError(nullptr);
    EXPECT_EQ(panel->created, 2);
    auto *list = panel->panelView()->findChild<PopupView *>("ColorModeList");
    EXPECT_EQ(list->numberOfItems(), 2);
    ASSERT_TRUE(list->chooseItem(1));
    EXPECT_EQ(host->marked("QZColorMode"), "Black");
    panel->terminate();
    EXPECT_EQ(panel->summaryInfo().size(), 1);
    EXPECT_TRUE(list->chooseItem(0)) << "a view outlives its control";
    EXPECT_EQ(host->marked("QZColorMode"), "Black");
}

} // namespace
