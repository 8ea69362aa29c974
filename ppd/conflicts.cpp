#include "ppd/conflicts.h"

#include "ppd/ppd_query.h"

#include <set>
#include <string>

namespace {

std::string keyOf(const char *option, const char *choice) {
    std::string key(option);
    return key.append(1, ':').append(choice);
}

bool isMarked(const ppd_file_t &ppd, x_constraints place) {
    const ForbiddingChoice forbidding = forbiddingChoice(ppd, place);
    return forbidding.choice && forbidding.choice->marked;
}

} // namespace

ForbiddingChoice forbiddingChoice(const ppd_file_t &ppd, x_constraints place) {
    if (place.groupIndex >= ppd.num_groups)
        return {};
    const ppd_group_t &group = ppd.groups[place.groupIndex];
    if (place.optionIndex >= group.num_options)
        return {};
    const ppd_option_t &option = group.options[place.optionIndex];
    if (place.choiceIndex >= option.num_choices)
        return {};
    return {&option, &option.choices[place.choiceIndex]};
}

bool IsPPDChoiceConflicted(ppd_file_t *ppd, const hash_multimap *table, const char *option,
                           const char *choice) {
    if (!ppd || !table || !option || !choice)
        return false;
    return table->anyOf(keyOf(option, choice),
                        [ppd](x_constraints place) { return isMarked(*ppd, place); });
}

QList<ForbiddingChoice> forbiddingMarks(ppd_file_t *ppd, const hash_multimap *table,
                                        const char *option, const char *choice) {
    QList<ForbiddingChoice> found;
    if (!ppd || !table || !option || !choice)
        return found;
    std::set<x_constraints> places;
    table->anyOf(keyOf(option, choice), [&](x_constraints place) {
        if (isMarked(*ppd, place))
            places.insert(place);
        return false;
    });
    for (const x_constraints &place : places)
        found.append(forbiddingChoice(*ppd, place));
    return found;
}

int32_t GetUIListFromPPD(ppd_file_t *ppd, const hash_multimap *table, const char *key,
                         ChoiceRows *list, short *count) {
    const ppd_option_t *option = ppd && key ? ppdFindOption(ppd, key) : nullptr;
    if (!list || !option)
        return 0;
    unsigned int encoding;
    GetCFStringEncodingFromPPD(ppd, &encoding);
    const QString keyword = QString::fromUtf8(option->keyword);
    list->reserve(list->size() + option->num_choices);
    for (int i = 0; i < option->num_choices; ++i) {
        const ppd_choice_t &choice = option->choices[i];
        const QString name = QString::fromUtf8(choice.choice);
        const bool conflicted = IsPPDChoiceConflicted(ppd, table, option->keyword, choice.choice);
        list->append({keyword, name, labelOr(choice.text, encoding, choice.choice),
                      conflicted ? kConflictTrue : kConflictFalse});
        if (count)
            ++*count;
    }
    return 0;
}

bool InitializeValueFromPPD(ppd_file_t *ppd, const hash_multimap *table, ChoiceRows *list,
                            const char *key) {
    short count = 0;
    GetUIListFromPPD(ppd, table, key, list, &count);
    return true;
}
