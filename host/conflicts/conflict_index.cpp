#include "host/conflicts/conflict_index.h"

#include "host/settings/ppd_texts.h"
#include "host/words.h"

#include <QSet>

#include <algorithm>

namespace host {
namespace {

constexpr qsizetype kMostTold = 3;

/// The name under which an option's value stands.
QByteArray keyOf(const QByteArray &keyword) {
    const QByteArray key = keyword.toLower();
    return key == "pageregion" ? QByteArray("pagesize") : key;
}

/// The name under which a constraint's choice stands.
QByteArray nameOf(const QByteArray &choice) {
    const QByteArray name = choice.toLower();
    return name.startsWith("custom.") ? QByteArray("custom") : name;
}

/// A choice that switches an option off.
bool isOff(const ppd_choice_t &choice) {
    for (const char *off : {"None", "Off", "False"})
        if (qstricmp(choice.choice, off) == 0)
            return true;
    return false;
}

/// Clauses are told once, whatever the order of their terms.
QByteArray signature(const Conflict &conflict) {
    std::vector<quintptr> parts;
    for (const Party &party : conflict)
        parts.push_back(quintptr(party.choice));
    std::sort(parts.begin(), parts.end());
    return {reinterpret_cast<const char *>(parts.data()),
            qsizetype(parts.size() * sizeof(quintptr))};
}

} // namespace

QString Party::text() const {
    return HostWords::tr("%1: %2").arg(optionText(*option), choiceText(*choice));
}

ConflictIndex::ConflictIndex(ppd_file_t *ppd) : m_ppd(ppd) {
    eachPpdOption(ppd, [this](const ppd_group_t &, const ppd_option_t &option) {
        const QByteArray keyword = QByteArray(option.keyword).toLower();
        if (keyword == "pageregion")
            m_pageRegion = &option;
        Option &entry = m_options[keyOf(keyword)];
        if (entry.option && keyword != "pagesize")
            return; // the first one counts, but the page size goes before its region
        entry = {&option, {}};
        for (int i = option.num_choices; i-- > 0;)
            entry.choices.insert(QByteArray(option.choices[i].choice).toLower(),
                                 &option.choices[i]);
    });
    if (!ppd)
        return;
    m_pageSize = m_options.value("pagesize").option;
    if (ppdFindAttr(ppd, "cupsUIConstraints", nullptr))
        readAttributes();
    else
        readPairs();
}

const ConflictIndex::Option *ConflictIndex::find(const QByteArray &keyword) const {
    const auto found = m_options.constFind(keyOf(keyword));
    return found == m_options.cend() ? nullptr : &*found;
}

bool ConflictIndex::takeTerm(const QByteArray &option, const QByteArray &choice,
                             Clause &clause) const {
    // "*CustomPageSize True" is the custom choice of PageSize.
    const bool isCustomOption =
        !qstrnicmp(option.constData(), "Custom", 6) && !qstricmp(choice.constData(), "True");
    const Option *found = find(isCustomOption ? option.mid(6) : option);
    if (!found)
        return false;
    Term term{found->option, nullptr};
    if (!choice.isEmpty()) {
        term.choice = found->choices.value(isCustomOption ? QByteArray("custom") : nameOf(choice));
        if (!term.choice)
            return false;
    }
    clause.push_back(term);
    return true;
}

void ConflictIndex::add(const Clause &clause) {
    const bool hasTwo = std::any_of(clause.begin(), clause.end(), [&](const Term &term) {
        return term.option != clause.front().option;
    });
    if (!hasTwo)
        return;
    const int number = int(m_clauses.size());
    m_clauses.push_back(clause);
    for (const Term &term : clause) {
        const void *name = term.choice ? static_cast<const void *>(term.choice) : term.option;
        std::vector<int> &list = m_byName[name];
        if (list.empty() || list.back() != number)
            list.push_back(number);
    }
}

void ConflictIndex::readPairs() {
    for (int i = 0; i < m_ppd->num_consts; ++i) {
        const ppd_const_t &pair = m_ppd->consts[i];
        Clause clause;
        if (takeTerm(pair.option1, pair.choice1, clause) &&
            takeTerm(pair.option2, pair.choice2, clause))
            add(clause);
    }
}

/// CUPS PPD Extensions: "*cupsUIConstraints resolver: "*Option Choice *Option ..."".
void ConflictIndex::readAttributes() {
    for (ppd_attr_t *attribute = ppdFindAttr(m_ppd, "cupsUIConstraints", nullptr); attribute;
         attribute = ppdFindNextAttr(m_ppd, "cupsUIConstraints", nullptr)) {
        Clause clause;
        bool isWhole = true;
        for (const QByteArray &part : QByteArray(attribute->value).split('*')) {
            const QList<QByteArray> words = part.simplified().split(' ');
            if (!words.first().isEmpty())
                isWhole = isWhole && takeTerm(words[0], words.value(1), clause);
        }
        if (isWhole)
            add(clause);
    }
}

const ppd_choice_t *ConflictIndex::current(const ppd_option_t &option) const {
    const ppd_choice_t *marked = markedChoice(option);
    if (marked || &option != m_pageSize || !m_pageRegion)
        return marked;
    const ppd_choice_t *region = markedChoice(*m_pageRegion);
    return region ? m_options["pagesize"].choices.value(QByteArray(region->choice).toLower())
                  : nullptr;
}

const ppd_choice_t *ConflictIndex::fulfilled(const Term &term, const Party &instead) const {
    if (term.option == instead.option) {
        const bool holds = term.choice ? term.choice == instead.choice : !isOff(*instead.choice);
        return holds ? instead.choice : nullptr;
    }
    if (term.option == m_pageSize) {
        const ppd_choice_t *size = current(*term.option);
        return size && (!term.choice || term.choice == size) ? size : nullptr;
    }
    if (term.choice)
        return term.choice->marked ? term.choice : nullptr;
    for (int i = 0; i < term.option->num_choices; ++i) // many can be marked
        if (term.option->choices[i].marked && !isOff(term.option->choices[i]))
            return &term.option->choices[i];
    return nullptr;
}

/// Conflicts as they are found, each once.
class ConflictIndex::Found {
public:
    explicit Found(const ConflictIndex &index, const Party &instead = {})
        : m_index(index), m_instead(instead) {}

    void look(const Clause &clause) {
        Conflict conflict;
        for (const Term &term : clause) {
            const ppd_choice_t *by = m_index.fulfilled(term, m_instead);
            if (!by)
                return;
            if (const Party party{term.option, by}; !conflict.contains(party))
                conflict.append(party);
        }
        if (const QByteArray name = signature(conflict); !m_known.contains(name)) {
            m_known.insert(name);
            conflicts.append(conflict);
        }
    }

    QList<Conflict> conflicts;

private:
    const ConflictIndex &m_index;
    Party m_instead;
    QSet<QByteArray> m_known;
};

QList<Conflict> ConflictIndex::conflictsOf(const QString &option, const QString &choice) const {
    const Option *asked = find(option.toUtf8());
    const ppd_choice_t *wanted =
        asked ? asked->choices.value(isCustom(choice) ? QByteArray("custom")
                                                      : choice.toUtf8().toLower())
              : nullptr;
    if (!wanted)
        return {};
    std::vector<int> clauses = m_byName.value(wanted);
    const std::vector<int> ofAny =
        isOff(*wanted) ? std::vector<int>() : m_byName.value(asked->option);
    clauses.insert(clauses.end(), ofAny.begin(), ofAny.end());
    std::sort(clauses.begin(), clauses.end());
    Found found(*this, {asked->option, wanted});
    for (const int number : clauses)
        found.look(m_clauses[size_t(number)]);
    return found.conflicts;
}

QList<Conflict> ConflictIndex::standing() const {
    Found found(*this);
    for (const Clause &clause : m_clauses)
        found.look(clause);
    return found.conflicts;
}

QString ConflictIndex::reasonAgainst(const QString &option, const QString &choice) const {
    const Option *asked = find(option.toUtf8());
    QStringList causes;
    for (const Conflict &conflict : conflictsOf(option, choice)) {
        if (causes.size() > kMostTold)
            break;
        QStringList others;
        for (const Party &party : conflict)
            if (party.option != asked->option && !others.contains(party.text()))
                others.append(party.text());
        const QString cause = others.join(HostWords::tr(" and "));
        if (!cause.isEmpty() && !causes.contains(cause))
            causes.append(cause);
    }
    if (causes.isEmpty())
        return {};
    const bool more = causes.size() > kMostTold;
    const QString list = causes.mid(0, kMostTold).join(HostWords::tr(", "));
    return more ? HostWords::tr("Not available with %1, and others").arg(list)
                : HostWords::tr("Not available with %1").arg(list);
}

} // namespace host
