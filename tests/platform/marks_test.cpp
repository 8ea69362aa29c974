#include "platform/ppd_marks.h"
#include "support/ppd_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

namespace {

const QByteArray kBody =
    ppdOption("PageSize", {"A4", "Letter"}) + ppdOption("PageRegion", {"A4", "Letter"}) +
    "*OpenUI *Holes: PickMany\n*DefaultHoles: None\n"
    "*Holes None: \"h0\"\n*Holes Left: \"h1\"\n*Holes Top: \"h2\"\n*CloseUI: *Holes\n" +
    ppdOption("ManualFeed", {"False", "True"}) + ppdOption("InputSlot", {"Upper", "Lower"}) +
    ppdOption("Mode", {"Auto", "Color", "Mono", "mono2"}, "Color") +
    ppdOption("Case", {"on", "ON", "On"}) + ppdOption("Level", {"1", "0", "-1"}, "0") +
    "*CustomLevel True: \"pop\"\n*ParamCustomLevel Value: 1 int 0 100\n";

/// The marks as each way of asking tells them.
std::string describe(ppd_file_t *ppd) {
    std::string text;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd)) {
        text += std::string(option->keyword) + ":";
        for (int i = 0; i < option->num_choices; ++i)
            if (option->choices[i].marked)
                text += std::string(" ") + option->choices[i].choice;
        if (const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option->keyword))
            text += std::string(" = ") + marked->choice + "\n";
    }
    const std::unique_ptr<char, decltype(&free)> code(ppdEmitString(ppd, PPD_ORDER_ANY, 0), free);
    return text + (code ? code.get() : "");
}

TEST(MarkChoice, AgreesWithLibcupsOnEveryRoad) {
    const PpdPtr ours = openPpdText(kBody);
    const PpdPtr theirs = openPpdText(kBody);
    const std::pair<const char *, const char *> acts[] = {
        {"Mode", "Auto"},       {"Mode", "MONO2"},        {"mode", "Mono"},
        {"Mode", "Color"},      {"Level", "-1"},          {"Level", "Custom.7"},
        {"Level", "Custom.9"},  {"Level", "{Value=11}"},  {"Level", "1"},
        {"PageSize", "Letter"}, {"PageRegion", "Letter"}, {"PageSize", "A4"},
        {"ManualFeed", "True"}, {"InputSlot", "Lower"},   {"ManualFeed", "False"},
        {"InputSlot", "Upper"}, {"Holes", "Left"},        {"Holes", "Top"},
    };
    std::mt19937 random(7);
    for (std::size_t step = 0; step < 300; ++step) {
        const auto &[option, choice] =
            acts[step < std::size(acts) ? step : random() % std::size(acts)];
        EXPECT_TRUE(markChoice(ours.get(), option, choice)) << option << choice;
        // What is marked stays untouched, where libcups would list it twice or unmark a partner.
        const ppd_choice_t *found = ppdFindChoice(ppdFindOption(theirs.get(), option), choice);
        if (!found || !found->marked || std::strpbrk(choice, ".{"))
            ppdMarkOption(theirs.get(), option, choice);
        ASSERT_EQ(describe(theirs.get()), describe(ours.get())) << step << option << choice;
    }
    EXPECT_TRUE(markChoice(ours.get(), "Case", "ON"));
    EXPECT_STREQ("ON", ppdFindMarkedChoice(ours.get(), "Case")->choice); // exact before the first
    const std::string before = describe(ours.get());
    EXPECT_FALSE(markChoice(ours.get(), "None", "Auto"));
    for (const char *missing : {"Sepia", "", "Custom.3"})
        EXPECT_FALSE(markChoice(ours.get(), "Mode", missing));
    EXPECT_EQ(before, describe(ours.get()));
}

} // namespace
