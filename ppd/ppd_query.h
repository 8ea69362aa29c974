#pragma once

#include "platform/cups_ppd.h"
#include "ppd/choice_row.h"
#include "ppd/pde_choice.h"

#include <QString>

#include <memory>

// Questions to a parsed PPD. No state; only marks are read that change, and nothing is written. The
// misses differ from call to call (-1, 0, one past the end) and each has its users. Option keywords
// are found by libcups, without regard to case; attributes are found here, with it. A null PPD is a
// miss.

// --- Does it exist?

bool CheckPPDKeyIsExist(ppd_file_t *ppd, const char *key);
/// Whether an attribute is there, by ppdFindAttr_ALT().
/// @param name  at most 19 bytes of UTF-8; a longer one is a miss
bool CDFKeyExist(ppd_file_t *ppd, const QString &name);
/// The first attribute, in the PPD's order, whose name begins with the given one, case counting. An
/// empty name thus finds the first attribute.
/// @param spec  plays no part
/// @return owned by the PPD, or null
ppd_attr_t *ppdFindAttr_ALT(ppd_file_t *ppd, const char *name, const char *spec);

// --- Options as numbers

/// @return the number of choices; 0 when a key or the PPD is missing
int GetPPDKeyOptionCount(ppd_file_t *ppd, const char *key);
/// @return index of the first of the texts that equals the option's default; -1 without one
int GetValueFromPPD(ppd_file_t *ppd, const char *key, const QString *values, int count);
/// @return index of the choice that is the default; -1 without one
int GetUIDefaultValueFromPPD(ppd_file_t *ppd, const char *key);
/// @return index of the first choice with exactly that keyword; the number of choices when there is
///         none; 0 when the option is missing
int GetChoiceIndex(ppd_file_t *ppd, const char *key, const char *choice);
/// @return index of the first choice with exactly that keyword; 0 in every other case
int GetIndexFromPPDByKeyword(ppd_option_t *option, const char *choice);
/// @param option  the option that the key names
/// @return index of the marked choice; without a mark that of the default; -1 without either, and
///         when the marked choice is none of the option's
int GetIndexOfMarkedOptionWithKey(ppd_option_t *option, ppd_file_t *ppd, const char *key);

// --- Texts and lists

/// @param out  the default's keyword; null when the option is missing
/// @return 0
int GetUIDefaultFromPPD(ppd_file_t *ppd, const char *key, QString &out);
/// @param out  the option's text in the PPD's encoding; null when the option is missing
/// @return 0
int GetUITitleFromPPD(ppd_file_t *ppd, const char *key, QString &out);
/// Copies a choice's keyword with its NUL; a miss of any kind leaves the buffer alone.
/// @param out  41 bytes
void GetValueFromPPDByIndex(ppd_file_t *ppd, const char *key, char *out, int index);
/// @return one element for each choice, in order, which borrow from the option; null without option
std::unique_ptr<PDEChoiceArray> ArrayFromPPDOption(ppd_option_t *option);
/// @return index of the first row with exactly that option and choice; -1 without one
int FindPPDKeyPairsMatch(const ChoiceRows &rows, const QString &key, const QString &choice);

/// Numbers of text encodings, as the host system has them.
inline constexpr unsigned int kEncodingMacRoman = 0;
inline constexpr unsigned int kEncodingMacJapanese = 1;
inline constexpr unsigned int kEncodingISOLatin1 = 513;
inline constexpr unsigned int kEncodingWindowsLatin1 = 1280;
inline constexpr unsigned int kEncodingUTF8 = 0x08000100;

/// @param out  the number for the PPD's `lang_encoding`, compared exactly; kEncodingMacRoman for an
///             unknown or missing one and without a PPD
void GetCFStringEncodingFromPPD(ppd_file_t *ppd, unsigned int *out);
/// Decodes a text of the PPD. A character that is cut off at the end, as libcups does at 80 bytes,
/// is dropped; bytes that are no text become U+FFFD.
/// @param encoding  a number of GetCFStringEncodingFromPPD(); any other is taken as UTF-8
/// @return null for a null text
QString decodePpdText(const char *text, unsigned int encoding);
/// @return the decoded text of an option or choice; its keyword where that is empty
QString labelOr(const char *text, unsigned int encoding, const char *keyword);

// --- Numbers out of texts

/// Joins the digits among the first n bytes and reads them as one number: "4to8" gives 48. Nothing
/// stops the scan, neither a sign nor a NUL.
/// @param text  n readable bytes
/// @return 0 without a digit; the greatest int for a number beyond it
int getIntFromString(const char *text, unsigned int n);
/// @return the digits of the option's default, by getIntFromString(); -1 when the option is missing
int GetPWMiniIntValueFromPPD(ppd_file_t *ppd, const char *key);
/// @return the first number, with its sign, within the attribute's value; -1 without one
int GetSorvaniPWMiniIntValueFromPPD(ppd_file_t *ppd, const char *name);
/// @return the digits among the first 3 bytes of the attribute's value in the PPD's encoding; 0 if
///         the attribute is missing or its value doesn't convert into 256 bytes
int GetMBMaxNumberFromPPD(ppd_file_t *ppd, const char *name);
