#pragma once

#include "platform/cups_ppd.h"

#include <QString>

#include <functional>

namespace host {

// Texts of a PPD in its own language. libcups has made them UTF-8 by the encoding that the PPD
// declares; those that a PPD has for other languages besides aren't looked at, as panels don't.

/// @return the text of an option or a choice, or its keyword where it has none
QString optionText(const ppd_option_t &option);
QString choiceText(const ppd_choice_t &choice);
QString groupText(const ppd_group_t &group);

/// Calls for each option with its main group, in the order of the PPD.
/// @param ppd  may be null
void eachPpdOption(ppd_file_t *ppd,
                   const std::function<void(const ppd_group_t &group, ppd_option_t &option)> &call);

/// @return an option by its keyword; null for a null PPD or text, too
ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword);
/// @return a choice by its keyword, "Custom" for a custom value; null without one
const ppd_choice_t *findChoice(const ppd_option_t &option, const QString &choice);
/// @return the only or first choice that is marked, or null
const ppd_choice_t *markedChoice(const ppd_option_t &option);

bool isCustom(const ppd_choice_t &choice);
/// @return whether a choice is "Custom" or has a custom value in it
bool isCustom(const QString &choice);
/// @return whether the custom value of an option is a width and a height
bool isPageSize(const ppd_option_t &option);

} // namespace host
