#pragma once

#include "platform/cups_ppd.h"
#include "ppd/hash_multimap.h"

#include <list>
#include <string>

// Flattens a PPD's *UIConstraints (PPD 4.3, 5.2) into a table from "option:choice", the choice that
// is forbidden, to the choices that forbid it.
//
// A constraint reads: with option1/choice1 marked, option2/choice2 is forbidden. Nothing adds the
// reverse. Options and choices are sought without regard to case in the top-level groups, in the
// PPD's order. A half that names no choice stands for the choices that do something: never the
// first of an option, never one called "None", "Off" or "False". A choice that is named is taken
// whatever it is called. The indices hold only for the PPD that the table was made from.

/// Adds the entries of all constraints that touch an option of the panel, as
/// addConstraintsOf() with the panel's 26 options. The table isn't cleared first.
/// @return 0, also for a null argument
int32_t xSetxppd(ppd_file_t *ppd, hash_multimap *table);

/// Adds the entries of all constraints of which at least one half names a watched option, in the
/// PPD's order. Keywords are compared with the watched ones exactly. Nothing for a null argument.
void addConstraintsOf(ppd_file_t *ppd, hash_multimap *table, const std::list<std::string> &watched);

// The forms of a constraint, by what it names. Each adds the entries of one constraint, given by
// its index in the PPD; a null argument or an index out of range adds nothing. Keys of a named
// choice2 are spelled as in the constraint and needn't exist; the others are spelled as in the
// options.

/// No choice named: each pair of choices of every option1 and every option2.
void xConst2Hash_O1O2(ppd_file_t *ppd, hash_multimap *table, int constraint);
/// choice2 alone named: the choices of the first option1 forbid option2:choice2.
void xConst2Hash_O1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint);
/// choice1 alone named: the first choice1 of any option1 forbids the choices of the first option2.
void xConst2Hash_O1C1O2(ppd_file_t *ppd, hash_multimap *table, int constraint);
/// Both named: the first choice1 of any option1 forbids option2:choice2; one entry at most.
void xConst2Hash_O1C1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint);
