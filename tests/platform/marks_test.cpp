#include "platform/ppd_marks.h"
#include "support/ppd_text.h"

#include <QList>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <random>
#include <string>

namespace {

const QByteArray kBody =
    "*OpenUI *PageSize: PickOne\n*DefaultPageSize: A4\n"
    "*PageSize A4: \"a4\"\n*PageSize Letter: \"letter\"\n*CloseUI: *PageSize\n"
    "*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: A4\n"
    "*PageRegion A4: \"ra4\"\n*PageRegion Letter: \"rletter\"\n*CloseUI: *PageRegion\n"
    "*DefaultImageableArea: A4\n*ImageableArea A4: \"0 0 595 842\"\n"
    "*ImageableArea Letter: \"0 0 612 792\"\n*DefaultPaperDimension: A4\n"
    "*PaperDimension A4: \"595 842\"\n*PaperDimension Letter: \"612 792\"\n"
    "*OpenUI *ManualFeed: Boolean\n*DefaultManualFeed: False\n"
    "*ManualFeed False: \"mf\"\n*ManualFeed True: \"mt\"\n*CloseUI: *ManualFeed\n"
    "*OpenUI *Holes: PickMany\n*DefaultHoles: None\n"
    "*Holes None: \"h0\"\n*Holes Left: \"h1\"\n*Holes Top: \"h2\"\n*CloseUI: *Holes\n" +
    ppdOption("InputSlot", {"Upper", "Lower"}, "Upper") +
    ppdOption("Mode", {"Auto", "Color", "Mono", "mono2"}, "Color") +
    ppdOption("Level", {"1", "0", "-1"}, "0") +
    "*CustomLevel True: \"pop\"\n*ParamCustomLevel Value: 1 int 0 100\n";

/// The marks as each way of asking tells them.
std::string describe(ppd_file_t *ppd) {
    std::string text;
    for (ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd)) {
        text += std::string(option->keyword) + ":";
        for (int i = 0; i < option->num_choices; ++i)
            if (option->choices[i].marked)
                text += std::string(" ") + option->choices[i].choice;
        text += "\n";
    }
    for (const char *keyword :
         {"Mode", "Level", "InputSlot", "ManualFeed", "PageSize", "PageRegion"})
        if (const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, keyword))
            text += std::string(keyword) + "=" + marked->choice + "\n";
    if (char *code = ppdEmitString(ppd, PPD_ORDER_ANY, 0)) {
        text += code;
        std::free(code);
    }
    return text;
}

TEST(MarkChoice, AgreesWithLibcupsOnEveryRoad) {
    const PpdPtr ours = openPpdText(kBody);
    const PpdPtr theirs = openPpdText(kBody);
    ASSERT_TRUE(ours && theirs);
    const struct {
        const char *option, *choice;
    } acts[] = {
        {"Mode", "Auto"},       {"Mode", "MONO2"},        {"mode", "Mono"},
        {"Mode", "Color"},      {"Level", "-1"},          {"Level", "Custom.7"},
        {"Level", "Custom.9"},  {"Level", "{Value=11}"},  {"Level", "1"},
        {"PageSize", "Letter"}, {"PageRegion", "Letter"}, {"PageSize", "A4"},
        {"ManualFeed", "True"}, {"InputSlot", "Lower"},   {"ManualFeed", "False"},
        {"InputSlot", "Upper"}, {"Holes", "Left"},        {"Holes", "Top"},
    };
    std::mt19937 random(7);
    for (std::size_t step = 0; step < 300; ++step) {
        const auto &act = acts[step < std::size(acts) ? step : random() % std::size(acts)];
        EXPECT_TRUE(markChoice(ours.get(), act.option, act.choice)) << act.option << act.choice;
        // What is marked stays untouched, where libcups would list it twice or unmark a partner.
        const ppd_choice_t *choice =
            ppdFindChoice(ppdFindOption(theirs.get(), act.option), act.choice);
        if (!choice || !choice->marked || std::strpbrk(act.choice, ".{"))
            ppdMarkOption(theirs.get(), act.option, act.choice);
        ASSERT_EQ(describe(theirs.get()), describe(ours.get()))
            << "step " << step << ": " << act.option << '=' << act.choice;
    }
}

TEST(MarkChoice, LooksUpFirst) {
    const PpdPtr ppd = openPpdText(kBody + ppdOption("Case", {"on", "ON", "On"}, "on"));
    describe(ppd.get()); // emitting settles the marks of page size and region
    const std::string before = describe(ppd.get());
    EXPECT_FALSE(markChoice(nullptr, "Mode", "Auto"));
    EXPECT_FALSE(markChoice(ppd.get(), nullptr, "Auto"));
    EXPECT_FALSE(markChoice(ppd.get(), "Mode", nullptr));
    EXPECT_FALSE(markChoice(ppd.get(), "None", "Auto"));
    EXPECT_FALSE(markChoice(ppd.get(), "Mode", "Sepia"));
    EXPECT_FALSE(markChoice(ppd.get(), "Mode", ""));
    EXPECT_FALSE(markChoice(ppd.get(), "Mode", "Custom.3"));
    EXPECT_EQ(before, describe(ppd.get()));
    EXPECT_TRUE(markChoice(ppd.get(), "Case", "ON"));
    EXPECT_STREQ("ON", ppdFindMarkedChoice(ppd.get(), "Case")->choice); // exact before the first
}

} // namespace
