// Every order of four calls, with and without a PPD, beside a second panel of another queue.

#include "plugin_fixture.h"

#include <cmath>

namespace {

using Panel = ImageOptionsPDEk27;

/// What each call does to the flags: whether the next opening is the first, whether the job is
/// being printed, and whether a shouldPrint waits for its save.
struct Flags {
    bool first = true, printing = false, pairOpen = false;
};

const struct Call {
    char letter;
    void (*make)(Panel &);
    void (*change)(Flags &, bool hasPpd);
} kCalls[] = {
    {'v', [](Panel &p) { p.panelView(); }, [](Flags &, bool) {}},
    {'n', [](Panel &p) { p.panelName(), p.panelKind(); }, [](Flags &, bool) {}},
    {'k', [](Panel &p) { p.supportedPPDOptionKeys(); }, [](Flags &, bool) {}},
    {'w', [](Panel &p) { p.willShow(); }, [](Flags &, bool) {}},
    {'h', [](Panel &p) { EXPECT_TRUE(p.shouldHide()); }, [](Flags &, bool) {}},
    {'d', [](Panel &p) { p.PPDOptionKeyValueDidChange("QZColorMode", "Black"); },
     [](Flags &, bool) {}},
    {'q', [](Panel &p) { p.shouldShowHelp(); }, [](Flags &, bool) {}},
    {'i', [](Panel &p) { EXPECT_FALSE(p.summaryInfo().isEmpty()); }, [](Flags &, bool) {}},
    {'t', [](Panel &p) { p.terminate(); }, [](Flags &, bool) {}},
    {'r', [](Panel &p) { EXPECT_TRUE(p.restoreValuesAndReturnError(nullptr)); },
     [](Flags &f, bool hasPpd) { f.first &= !hasPpd; }},
    {'p', [](Panel &p) { EXPECT_TRUE(p.shouldPrint()); },
     [](Flags &f, bool hasPpd) {
         f.first &= !hasPpd;
         f.printing = f.pairOpen = true;
     }},
    {'s', [](Panel &p) { EXPECT_TRUE(p.saveValuesAndReturnError(nullptr)); },
     [](Flags &f, bool) {
         f.printing = true;
         f.pairOpen = false;
     }},
};

} // namespace

class Sequences : public PluginTest, public testing::WithParamInterface<std::tuple<Call, bool>> {
protected:
#ifdef __SANITIZE_ADDRESS__ // which takes many times as long
    static constexpr int kLength = 3;
#else
    static constexpr int kLength = 4;
#endif

    std::unique_ptr<Panel> newPanel(const std::shared_ptr<TestHost> &callback) const {
        auto panel = std::make_unique<Panel>();
        panel->initWithCallback(callback);
        panel->bFirstInitialzePDE = true;
        panel->gbIsPrint = false;
        panel->isShouldPrintCalled = false;
        return panel;
    }
};

TEST_P(Sequences, KeepTheFlagsAndTheOtherPanel) {
    const auto &[begin, hasPpd] = GetParam();
    const PpdPtr ppd = openSample("velmora-mvo-530.ppd"),
                 otherPpd = openSample("velmora-mvo-110.ppd");
    const auto otherHost = std::make_shared<TestHost>(otherPpd.get());
    const auto other = newPanel(otherHost);
    other->supportedPPDOptionKeys();
    other->restoreValuesAndReturnError(nullptr);
    const QVariantMap summary = other->summaryInfo();
    const qsizetype calls = otherHost->calls.size(), entries = otherHost->settings.entries().size();

    constexpr int kCount = std::size(kCalls);
    const int orders = int(std::pow(kCount, kLength - 1));
    for (int number = 0; number < orders && !HasFailure(); ++number) {
        ppdMarkDefaults(ppd.get());
        const auto callback = std::make_shared<TestHost>(hasPpd ? ppd.get() : nullptr);
        const auto panel = newPanel(callback);
        Flags flags;
        std::string made;
        for (int at = 0, rest = number; at < kLength; ++at) {
            const Call &call = at == 0 ? begin : kCalls[rest % kCount];
            rest = at == 0 ? rest : rest / kCount;
            made += call.letter;
            call.make(*panel);
            call.change(flags, hasPpd);
            EXPECT_EQ(panel->bFirstInitialzePDE, flags.first) << made;
            EXPECT_EQ(panel->gbIsPrint, flags.printing) << made;
            EXPECT_EQ(panel->isShouldPrintCalled, flags.pairOpen) << made;
        }
        panel->terminate();
        EXPECT_EQ(other->summaryInfo(), summary) << made;
        EXPECT_EQ(otherHost->calls.size(), calls) << made;
        EXPECT_EQ(otherHost->settings.entries().size(), entries) << made;
    }
    other->terminate();
}

INSTANTIATE_TEST_SUITE_P(Begin, Sequences,
                         testing::Combine(testing::ValuesIn(kCalls), testing::Bool()),
                         [](const testing::TestParamInfo<std::tuple<Call, bool>> &info) {
                             return std::string(1, std::get<0>(info.param).letter) +
                                    (std::get<1>(info.param) ? "WithPpd" : "WithoutPpd");
                         });
