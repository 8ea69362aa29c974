#include "support/ppd_text.h"

#include "host/conflicts/conflict_dialog.h"
#include "host/conflicts/conflict_line.h"
#include "host/settings/ppd_texts.h"
#include "platform/ppd_marks.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

using Names = std::set<std::string>;

std::string nameOf(const char *option) {
    const std::string name = QByteArray(option).toLower().toStdString();
    return name == "pageregion" ? "pagesize" : name;
}

Names namesIn(const QList<host::Conflict> &conflicts) {
    Names names;
    for (const host::Conflict &conflict : conflicts)
        for (const host::Party &party : conflict)
            names.insert(nameOf(party.option->keyword));
    return names;
}

/// The keyword of an option's mark.
std::string marked(ppd_file_t *ppd, const char *option) {
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option);
    return choice ? choice->choice : "";
}

QByteArray randomPpd(std::mt19937 &random, bool isExtended) {
    const auto pick = [&random](int count) { return int(random() % unsigned(count)); };
    const QByteArrayList sizes = {"A4", "Letter", "A5"},
                         choices = {"None", "Off", "False", "X", "Y", "Z"},
                         options = {"A", "B", "C", "D", "E", "PageSize", "PageRegion"};
    QByteArray text;
    for (const QByteArray &option : options)
        text += ppdOption(option, option.startsWith("Page") ? sizes : choices);
    for (const QByteArray &size : sizes)
        text += "*ImageableArea " + size + ": \"0 0 1 1\"\n*PaperDimension " + size + ": \"1 1\"\n";
    const auto term = [&](int at) {
        const QByteArray option = pick(20) ? options[at + (at == 5 && pick(2))] : "Missing";
        const QByteArray choice = at == 5    ? sizes[pick(3)]
                                  : !pick(4) ? QByteArray()
                                             : choices.value(pick(7), "Missing");
        return " *" + (pick(5) ? option : option.toUpper()) + ' ' +
               (pick(5) ? choice : choice.toLower());
    };
    for (int i = 0; i < 12; ++i) {
        int at = pick(6);
        QByteArray terms = term(at);
        for (int n = isExtended ? 1 + pick(3) : 1; n > 0; --n)
            terms += term(at = (at + 1 + pick(2)) % 6);
        text += isExtended ? "*cupsUIConstraints: \"" + terms + "\"\n"
                           : "*UIConstraints:" + terms + "\n";
    }
    return text;
}

Names cupsConflictsOf(ppd_file_t *ppd, const ppd_option_t &option, const char *choice) {
    cups_option_t *options = nullptr;
    const int count = cupsGetConflicts(ppd, option.keyword, choice, &options);
    Names names;
    for (int i = 0; i < count; ++i)
        names.insert(nameOf(options[i].name));
    cupsFreeOptions(count, options);
    names.erase(nameOf(option.keyword));
    return names;
}

/// Our answers beside those of libcups, for the marks as they stand.
void compareWithCups(ppd_file_t *ppd, const host::ConflictIndex &index) {
    ppdConflicts(ppd);
    const QList<host::Conflict> standing = index.standing();
    Names conflicted;
    host::eachPpdOption(ppd, [&](const ppd_group_t &, const ppd_option_t &option) {
        if (option.conflicted)
            conflicted.insert(nameOf(option.keyword));
        Names alsoTold; // libcups tells the conflicts of other options as well
        for (const host::Conflict &conflict : standing)
            if (Names names = namesIn({conflict}); !names.contains(nameOf(option.keyword)))
                alsoTold.merge(names);
        for (int i = 0; i < option.num_choices; ++i) {
            const char *choice = option.choices[i].choice;
            Names ours = namesIn(index.conflictsOf(option.keyword, choice));
            EXPECT_EQ(index.reasonAgainst(option.keyword, choice).isNull(), ours.empty());
            ours.erase(nameOf(option.keyword));
            ours.insert(alsoTold.begin(), alsoTold.end());
            EXPECT_EQ(ours, cupsConflictsOf(ppd, option, choice)) << option.keyword << choice;
        }
    });
    EXPECT_EQ(namesIn(standing), conflicted);
}

} // namespace

/// Random marks on the sample queues and on small PPDs with random constraints.
TEST(Conflicts, AgreeWithLibcupsAndAreResolved) {
    std::mt19937 random(1);
    int found = 0, resolved = 0;
    for (int n = 0; n < 36; ++n) {
        static const char *const samples[] = {"sorvani-sv500",      "velmora-mvo-220",
                                              "velmora-mvo-420",    "velmora-mvo-530",
                                              "velmora-mvo-530-ja", "velmora-plain"};
        const PpdPtr ppd = n < 6 ? openSample(samples[n] + QStringLiteral(".ppd"))
                                 : openPpdText(randomPpd(random, n % 2));
        const host::ConflictIndex index(ppd.get());
        for (int round = 0; round < (n < 6 ? 2 : 12); ++round) {
            host::eachPpdOption(ppd.get(), [&](const ppd_group_t &, const ppd_option_t &option) {
                ppdMarkOption(ppd.get(), option.keyword,
                              option.choices[random() % unsigned(option.num_choices)].choice);
            });
            compareWithCups(ppd.get(), index);
            ASSERT_FALSE(HasFailure()) << "PPD " << n;
            const QList<host::Conflict> standing = index.standing();
            const QList<host::Change> changes = host::proposal(index);
            EXPECT_EQ(index.standing(), standing) << "marks stand as before";
            found += !standing.isEmpty();
            resolved += !changes.isEmpty();
            for (const host::Change &change : changes)
                EXPECT_TRUE(markChoice(ppd.get(), change.option->keyword, change.to->choice));
            EXPECT_TRUE(changes.isEmpty() || index.standing().isEmpty()) << "PPD " << n;
        }
    }
    EXPECT_GT(found, 100);
    EXPECT_GT(resolved, found * 9 / 10);
}

TEST(Conflicts, WordsAndWaysOut) {
    const struct {
        const char *constraints, *mark;
        const char *chosenLast;
        const char *reason;   ///< against Paper=Film
        const char *proposal; ///< with Paper=Film marked
    } cases[] = {
        {"*UIConstraints: *Paper Film *Duplex", "Duplex On", nullptr,
         "Not available with Duplex title: On label", "Paper title: Film label → Plain label"},
        {"*UIConstraints: *Paper Film *Duplex", "Duplex On", "Paper",
         "Not available with Duplex title: On label", "Duplex title: On label → Off label"},
        {"*UIConstraints: *Paper Film *Duplex", "Duplex Off", nullptr, nullptr, nullptr},
        {"*cupsUIConstraints: \"*Paper Film *Duplex On *Tray Two\"", "Tray Two", nullptr, nullptr,
         nullptr},
        {"*cupsUIConstraints: \"*Paper Film *Duplex On *Tray Two\"", "Tray Two Duplex On", nullptr,
         "Not available with Duplex title: On label and Tray title: Two label",
         "Paper title: Film label → Plain label"},
        // Nothing that names a single option, or what isn't there.
        {"*UIConstraints: *Paper Film *Paper\n*UIConstraints: *Paper *Ink Red", "Duplex On",
         nullptr, nullptr, nullptr},
        {"*cupsUIConstraints: \"*Paper Film\"", "Duplex On", nullptr, nullptr, nullptr},
        // No way out: each paper conflicts with each tray.
        {"*cupsUIConstraints none: \"*Paper Film *Tray\"\n"
         "*cupsUIConstraints none: \"*Paper Plain *Tray\"",
         "Tray Two", "Paper", "Not available with Tray title: Two label", nullptr},
    };
    for (const auto &row : cases) {
        const PpdPtr ppd =
            openPpdText(ppdOption("Paper", {"Plain", "Film"}) + ppdOption("Duplex", {"Off", "On"}) +
                        ppdOption("Tray", {"One", "Two"}) + row.constraints + "\n");
        const QByteArrayList marks = QByteArray(row.mark).split(' ');
        for (qsizetype i = 0; i < marks.size(); i += 2)
            markChoice(ppd.get(), marks[i], marks[i + 1]);
        const host::ConflictIndex index(ppd.get());
        EXPECT_EQ(index.reasonAgainst("paper", "Film").toStdString(), row.reason ? row.reason : "");
        markChoice(ppd.get(), "Paper", "Film");
        QStringList changes;
        for (const host::Change &change : host::proposal(index, row.chosenLast))
            changes.append(change.text());
        EXPECT_EQ(changes.join("; ").toStdString(), row.proposal ? row.proposal : "") << row.mark;
    }
}

/// Put into the structure by hand: libcups makes room for one more at a time, which takes minutes
/// where memory is checked.
TEST(Conflicts, ManyConstraintsDontStall) {
    QByteArrayList choices = {"None"};
    for (int i = 0; i < 320; ++i)
        choices.append("C" + QByteArray::number(i));
    const PpdPtr ppd = openPpdText(ppdOption("A", choices) + ppdOption("B", choices));
    ppd->num_consts = 100'000;
    ppd->consts = static_cast<ppd_const_t *>(calloc(100'000, sizeof(ppd_const_t)));
    for (int i = 0; i < 100'000; ++i) {
        ppd_const_t &pair = ppd->consts[i];
        pair.option1[0] = 'A';
        pair.option2[0] = 'B';
        qstrncpy(pair.choice1, choices[1 + i % 320], sizeof pair.choice1);
        qstrncpy(pair.choice2, choices[1 + i / 320], sizeof pair.choice2);
    }
    markChoice(ppd.get(), "A", "C0");
    markChoice(ppd.get(), "B", "C0");
    const host::ConflictIndex index(ppd.get());
    int forbidden = 0;
    for (const QByteArray &choice : choices)
        forbidden += !index.reasonAgainst("B", choice).isNull();
    EXPECT_EQ(forbidden, 313); // a row of 320 each, the last one unfinished
    EXPECT_EQ(index.size(), 100'000);
    EXPECT_EQ(index.standing().size(), 1);
    EXPECT_EQ(host::proposal(index).size(), 1);
}

TEST(Conflicts, AreShownAndThePersonDecides) {
    const struct {
        host::Purpose purpose;
        const char *button; ///< null for Escape
        bool goesOn;
        int changes;
    } cases[] = {
        {host::Purpose::Print, "change", true, 1},  {host::Purpose::Print, "printAnyway", true, 0},
        {host::Purpose::Print, "goBack", false, 0}, {host::Purpose::Print, nullptr, false, 0},
        {host::Purpose::Look, "change", true, 1},
    };
    const PpdPtr ppd =
        openPpdText(ppdOption("Paper", {"Plain", "Film"}) + ppdOption("Duplex", {"Off", "On"}) +
                    "*UIConstraints: *Paper Film *Duplex On\n");
    const host::ConflictIndex index(ppd.get());
    EXPECT_TRUE(host::askAboutConflicts(nullptr, index, host::Purpose::Print).goesOn);
    markChoice(ppd.get(), "Paper", "Film");
    markChoice(ppd.get(), "Duplex", "On");
    for (const auto &row : cases) {
        QWidget parent;
        QTimer::singleShot(0, &parent, [&] {
            auto *dialog = parent.findChild<QDialog *>("conflictDialog");
            const QString shown = dialog->findChild<QLabel *>("conflicts")->text();
            EXPECT_TRUE(shown.contains("Paper title: Film label and Duplex title: On label"));
            EXPECT_TRUE(dialog->findChild<QPushButton *>("change")->isDefault());
            EXPECT_EQ(!dialog->findChild<QPushButton *>("printAnyway"),
                      row.purpose == host::Purpose::Look);
            row.button ? dialog->findChild<QPushButton *>(row.button)->click() : dialog->reject();
        });
        const host::Decision decision = host::askAboutConflicts(&parent, index, row.purpose);
        EXPECT_EQ(decision.goesOn, row.goesOn) << row.button;
        EXPECT_EQ(decision.changes.size(), row.changes) << row.button;
        EXPECT_EQ(marked(ppd.get(), "Duplex"), "On") << "nothing is changed by asking";
    }
    host::ConflictLine line;
    line.show(2, "A and B");
    EXPECT_TRUE(line.isVisibleTo(nullptr));
    EXPECT_TRUE(line.findChild<QLabel *>("conflictWords")->text().contains("A and B, and 1 more"));
    line.show(0, {});
    EXPECT_TRUE(line.isHidden());
}
