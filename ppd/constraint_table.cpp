#include "ppd/constraint_table.h"

#include "ppd/flat_index.h"
#include "ppd/panel_options.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <span>
#include <string_view>

namespace {

bool isIdle(std::string_view choice) {
    return FoldedText::equal(choice, "None") || FoldedText::equal(choice, "Off") ||
           FoldedText::equal(choice, "False");
}

/// Turns the constraints of one PPD into entries. Options and choices are indexed once, so that a
/// constraint costs no walk through the PPD.
class Flattener {
    struct OptionPlace {
        const ppd_option_t *option;
        int groupIndex, optionIndex;
    };
    /// The options of one keyword, whatever its case, in the PPD's order.
    struct SameName {
        std::vector<OptionPlace> places;
        /// The first choice of each keyword in any of the options.
        FlatIndex<x_constraints, FoldedText> choices;
        // What a half without a choice stands for, made when first needed.
        std::optional<hash_multimap::KeyList> firstKeys, allKeys;
        std::optional<hash_multimap::ValueList> firstValues, allValues;
    };
    /// One spelling of an option in the constraints.
    struct Spelling {
        Spelling(SameName *options, bool isWatched) : same(options), watched(isWatched) {}

        SameName *same; ///< null when the PPD has no such option
        bool watched;
        FlatIndex<hash_multimap::KeyList> keys; ///< by the spelling of a choice
    };

public:
    using Form = void (Flattener::*)(const ppd_const_t &, SameName *, Spelling &);

    Flattener(const ppd_file_t &ppd, hash_multimap &table) : m_table(table) {
        for (int g = 0; g < ppd.num_groups; ++g)
            for (int o = 0; o < ppd.groups[g].num_options; ++o) {
                const ppd_option_t &option = ppd.groups[g].options[o];
                SameName &same = sameName(option.keyword);
                same.places.push_back({&option, g, o});
                for (int c = 0; c < option.num_choices; ++c)
                    same.choices.insert(option.choices[c].choice, place(g, o, c));
            }
    }

    /// Adds the constraint if one of its options is watched.
    void addWatched(const ppd_const_t &constraint, const std::list<std::string> &watched) {
        const Spelling &first = spelling(constraint.option1, watched);
        Spelling &second = spelling(constraint.option2, watched);
        if (first.watched || second.watched)
            add(constraint, first.same, second);
    }
    void add(const ppd_const_t &constraint, Form form) {
        (this->*form)(constraint, find(constraint.option1), spelling(constraint.option2, {}));
    }

    // The forms, given the options that match option1, or null, and what option2 names.

    void addO1C1O2C2(const ppd_const_t &constraint, SameName *forbids, Spelling &forbidden) {
        if (const x_constraints *hit = find(forbids, constraint.choice1))
            m_table.insert(keyOf(constraint, forbidden), *hit);
    }

    void addO1C1O2(const ppd_const_t &constraint, SameName *forbids, Spelling &forbidden) {
        const x_constraints *hit = find(forbids, constraint.choice1);
        if (SameName *same = forbidden.same; hit && same)
            m_table.insert(keys(same->firstKeys, std::span(same->places).first(1)), *hit);
    }

    void addO1O2C2(const ppd_const_t &constraint, SameName *forbids, Spelling &forbidden) {
        if (forbids)
            m_table.insert(keyOf(constraint, forbidden),
                           values(forbids->firstValues, std::span(forbids->places).first(1)));
    }

    void addO1O2(const ppd_const_t &, SameName *forbids, Spelling &forbidden) {
        if (SameName *same = forbidden.same; forbids && same)
            m_table.insert(keys(same->allKeys, same->places),
                           values(forbids->allValues, forbids->places));
    }

private:
    static x_constraints place(int group, int option, int choice) {
        return {static_cast<uint16_t>(group), static_cast<uint16_t>(option),
                static_cast<uint16_t>(choice)};
    }

    void add(const ppd_const_t &constraint, SameName *forbids, Spelling &forbidden) {
        if (constraint.choice1[0])
            constraint.choice2[0] ? addO1C1O2C2(constraint, forbids, forbidden)
                                  : addO1C1O2(constraint, forbids, forbidden);
        else
            constraint.choice2[0] ? addO1O2C2(constraint, forbids, forbidden)
                                  : addO1O2(constraint, forbids, forbidden);
    }

    SameName &sameName(const char *option) {
        if (SameName *same = find(option))
            return *same;
        return *m_options.insert(option, &m_sameNames.emplace_back());
    }
    SameName *find(const char *option) const {
        SameName *const *found = m_options.find(option);
        return found ? *found : nullptr;
    }
    static const x_constraints *find(const SameName *same, const char *choice) {
        return same ? same->choices.find(choice) : nullptr;
    }
    Spelling &spelling(const char *option, const std::list<std::string> &watched) {
        if (Spelling *const *found = m_spellings.find(option))
            return **found;
        const bool isWatched = std::ranges::find(watched, option) != watched.end();
        return *m_spellings.insert(option, &m_spellingStore.emplace_back(find(option), isWatched));
    }

    static std::string key(const char *option, const char *choice) {
        return std::string(option).append(1, ':').append(choice);
    }
    /// The key of the constraint's second half, found without making its text anew.
    hash_multimap::KeyList keyOf(const ppd_const_t &constraint, Spelling &option2) {
        if (const hash_multimap::KeyList *found = option2.keys.find(constraint.choice2))
            return *found;
        return option2.keys.insert(constraint.choice2,
                                   m_table.keyList(key(constraint.option2, constraint.choice2)));
    }

    template <typename Visit>
    static void forEachCountable(std::span<const OptionPlace> options, Visit visit) {
        for (const OptionPlace &at : options)
            for (int c = 1; c < at.option->num_choices; ++c)
                if (!isIdle(at.option->choices[c].choice))
                    visit(at, c);
    }
    hash_multimap::KeyList keys(std::optional<hash_multimap::KeyList> &made,
                                std::span<const OptionPlace> options) {
        if (!made) {
            std::vector<std::string> list;
            forEachCountable(options, [&](const OptionPlace &at, int c) {
                list.push_back(key(at.option->keyword, at.option->choices[c].choice));
            });
            made = m_table.keyList(list);
        }
        return *made;
    }
    hash_multimap::ValueList values(std::optional<hash_multimap::ValueList> &made,
                                    std::span<const OptionPlace> options) {
        if (!made) {
            std::vector<x_constraints> list;
            forEachCountable(options, [&](const OptionPlace &at, int c) {
                list.push_back(place(at.groupIndex, at.optionIndex, c));
            });
            made = m_table.valueList(std::move(list));
        }
        return *made;
    }

    hash_multimap &m_table;
    std::deque<SameName> m_sameNames; ///< a deque, since they are pointed to
    FlatIndex<SameName *, FoldedText> m_options;
    std::deque<Spelling> m_spellingStore;
    FlatIndex<Spelling *> m_spellings;
};

void addOne(ppd_file_t *ppd, hash_multimap *table, int constraint, Flattener::Form form) {
    if (ppd && table && constraint >= 0 && constraint < ppd->num_consts)
        Flattener(*ppd, *table).add(ppd->consts[constraint], form);
}

} // namespace

int32_t xSetxppd(ppd_file_t *ppd, hash_multimap *table) {
    addConstraintsOf(ppd, table, {kPanelOptionKeys.begin(), kPanelOptionKeys.end()});
    return 0;
}

void addConstraintsOf(ppd_file_t *ppd, hash_multimap *table,
                      const std::list<std::string> &watched) {
    if (!ppd || !table)
        return;
    table->reserve(ppd->num_consts);
    Flattener flattener(*ppd, *table);
    for (int i = 0; i < ppd->num_consts; ++i)
        flattener.addWatched(ppd->consts[i], watched);
}

void xConst2Hash_O1O2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    addOne(ppd, table, constraint, &Flattener::addO1O2);
}

void xConst2Hash_O1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    addOne(ppd, table, constraint, &Flattener::addO1O2C2);
}

void xConst2Hash_O1C1O2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    addOne(ppd, table, constraint, &Flattener::addO1C1O2);
}

void xConst2Hash_O1C1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    addOne(ppd, table, constraint, &Flattener::addO1C1O2C2);
}
