#pragma once

#include "platform/cups_ppd.h"
#include "ppd/choice_row.h"
#include "ppd/hash_multimap.h"

/// Whether a choice is forbidden by what is marked now: whether the table has an entry under
/// exactly "option:choice" that names a marked choice. An entry outside the PPD, as a stale cache
/// file may hold, is no conflict. libcups' own conflict test plays no part.
/// @return false for a null argument
bool IsPPDChoiceConflicted(ppd_file_t *ppd, const hash_multimap *table, const char *option,
                           const char *choice);
/// The choice that an entry of the table names, and its option.
struct ForbiddingChoice {
    const ppd_option_t *option = nullptr;
    const ppd_choice_t *choice = nullptr;
};
/// @return nulls when the indices lie outside the PPD
ForbiddingChoice forbiddingChoice(const ppd_file_t &ppd, x_constraints place);
/// The marked choices for which IsPPDChoiceConflicted() holds, each once, in the PPD's order.
QList<ForbiddingChoice> forbiddingMarks(ppd_file_t *ppd, const hash_multimap *table,
                                        const char *option, const char *choice);
/// Appends one row for each choice of the option, in order; nothing without a list, an option or a
/// choice.
/// @param table  null when nothing is to be forbidden
/// @param count  counted up by one for each row; may be null
/// @return 0
int32_t GetUIListFromPPD(ppd_file_t *ppd, const hash_multimap *table, const char *key,
                         ChoiceRows *list, short *count);
/// As GetUIListFromPPD(), without a counter.
/// @return true
bool InitializeValueFromPPD(ppd_file_t *ppd, const hash_multimap *table, ChoiceRows *list,
                            const char *key);
