#include "host/conflicts/resolution.h"

#include "host/settings/ppd_texts.h"
#include "host/words.h"
#include "platform/ppd_marks.h"

#include <algorithm>
#include <vector>

namespace host {
namespace {

/// libcups' resolver tests all clauses for all choices of all that conflict, again and again:
/// clauses times conflicts.
constexpr qsizetype kMostForCups = 20'000;
constexpr int kMostSteps = 100;

/// Puts the marks back that stood at its beginning.
class MarksKept {
public:
    explicit MarksKept(ppd_file_t *ppd) {
        eachPpdOption(ppd, [this](const ppd_group_t &, ppd_option_t &option) {
            for (int i = 0; i < option.num_choices; ++i)
                m_marks.emplace_back(&option.choices[i].marked, option.choices[i].marked);
        });
    }
    ~MarksKept() {
        for (const auto &[place, value] : m_marks)
            *place = value;
    }
    MarksKept(const MarksKept &) = delete;
    MarksKept &operator=(const MarksKept &) = delete;

private:
    std::vector<std::pair<char *, char>> m_marks;
};

/// Moves an option's mark, without what libcups does besides.
void move(const ppd_option_t &option, const ppd_choice_t *to) {
    for (int i = 0; i < option.num_choices; ++i)
        option.choices[i].marked = &option.choices[i] == to;
}

/// What is known while changes are sought.
struct Search {
    const ConflictIndex &index;
    const ppd_option_t *kept = nullptr; ///< not to be changed

    bool isFixed(const ppd_option_t &option) const {
        return &option == kept || option.ui == PPD_UI_PICKMANY;
    }
};

QList<Change> changesFrom(int count, cups_option_t *options, const Search &search) {
    QList<Change> changes;
    for (int i = 0; i < count; ++i) {
        const ppd_option_t *option =
            findOption(search.index.ppd(), QString::fromUtf8(options[i].name));
        const ppd_choice_t *to =
            option ? findChoice(*option, QString::fromUtf8(options[i].value)) : nullptr;
        if (to && !to->marked && !search.isFixed(*option))
            changes.append({option, search.index.current(*option), to});
    }
    return changes;
}

QList<Change> cupsProposal(const Search &search) {
    const ppd_choice_t *last = search.kept ? search.index.current(*search.kept) : nullptr;
    int count = 0;
    cups_option_t *options = nullptr;
    QList<Change> changes;
    if (cupsResolveConflicts(search.index.ppd(), last ? search.kept->keyword : nullptr,
                             last ? last->choice : nullptr, &count, &options))
        changes = changesFrom(count, options, search);
    cupsFreeOptions(count, options);
    return changes;
}

/// The default first, then the others in their order.
std::vector<const ppd_choice_t *> candidates(const ppd_option_t &option) {
    std::vector<const ppd_choice_t *> list;
    for (const bool standard : {true, false})
        for (int i = 0; i < option.num_choices; ++i)
            if ((qstricmp(option.choices[i].choice, option.defchoice) == 0) == standard &&
                !isCustom(option.choices[i]))
                list.push_back(&option.choices[i]);
    return list;
}

/// One step: a choice of one of the parties that conflicts with nothing.
bool settleOne(const Search &search, const Conflict &conflict, QList<Change> &changes) {
    for (auto party = conflict.rbegin(); party != conflict.rend(); ++party) {
        if (search.isFixed(*party->option))
            continue;
        for (const ppd_choice_t *to : candidates(*party->option)) {
            if (to == party->choice || !search.index
                                            .conflictsOf(QString::fromUtf8(party->option->keyword),
                                                         QString::fromUtf8(to->choice))
                                            .isEmpty())
                continue;
            changes.append({party->option, party->choice, to});
            move(*party->option, to);
            return true;
        }
    }
    return false;
}

/// Each step ends a conflict and makes none.
QList<Change> freeChoices(const Search &search) {
    QList<Change> changes;
    for (int step = 0; step < kMostSteps; ++step) {
        const QList<Conflict> standing = search.index.standing();
        if (standing.isEmpty() || !settleOne(search, standing.first(), changes))
            break;
    }
    return changes;
}

QList<Change> defaultsOfAll(const Search &search) {
    QList<Change> changes;
    const auto isIn = [&changes](const ppd_option_t *option) {
        return std::any_of(changes.begin(), changes.end(),
                           [option](const Change &change) { return change.option == option; });
    };
    for (const Conflict &conflict : search.index.standing())
        for (const Party &party : conflict) {
            const ppd_choice_t *to =
                findChoice(*party.option, QString::fromUtf8(party.option->defchoice));
            if (to && to != party.choice && !search.isFixed(*party.option) && !isIn(party.option))
                changes.append({party.option, party.choice, to});
        }
    return changes;
}

} // namespace

QString Change::text() const {
    const QString before = from ? choiceText(*from) : HostWords::tr("none");
    return HostWords::tr("%1: %2 → %3").arg(optionText(*option), before, choiceText(*to));
}

QList<Change> proposal(const ConflictIndex &index, const QString &chosenLast) {
    const qsizetype standing = index.standing().size();
    if (standing == 0)
        return {};
    const ppd_option_t *last = findOption(index.ppd(), chosenLast);
    if (last && isPageSize(*last)) // conflicts name the size, not the region
        if (const ppd_option_t *size = findOption(index.ppd(), QStringLiteral("PageSize")))
            last = size;
    for (const ppd_option_t *kept : {last, static_cast<const ppd_option_t *>(nullptr)}) {
        for (const auto &attempt : {cupsProposal, freeChoices, defaultsOfAll}) {
            if (attempt == cupsProposal && index.size() * standing > kMostForCups)
                continue;
            const MarksKept marks(index.ppd());
            const QList<Change> changes = attempt({index, kept});
            for (const Change &change : changes)
                move(*change.option, change.to);
            if (!changes.isEmpty() && index.standing().isEmpty())
                return changes;
        }
        if (!kept)
            break;
    }
    return {};
}

} // namespace host
