#pragma once

#include "ppd/input_filter.h"

#include <QString>
#include <QStringList>
#include <QVariant>

// Text and number work of the entry fields, lists and settings. Nothing here holds state. A value
// with one decimal is an integer in tenths: 12.3 is 123.

// --- numbers and their texts ---

/// Writes decimal digits from the end of a buffer, with the NUL in its last byte.
///
/// 0 gives an empty text. There is no sign: the digits of a negative value come out as bytes below
/// "0". Digits that don't fit in front are left out.
/// @param size  bytes of the buffer, not a radix
/// @return the first digit in the buffer; null for a null buffer or a size below 1
char *itoa(int value, char *buffer, int size);
/// @return the number of characters of the value in decimal, the sign included
int GetIntegerLength(int value);
/// Writes tenths as fixed-point text: 123 is "12.3", 5 is "0.5", 0 is "0.0", -5 is "-.5".
/// @param out   receives exactly `size` bytes, zero behind the text, which is cut to size - 1
void ConvertIntToFloatStr(const int *value, char *out, int size);
/// Reads tenths from a text with one decimal or none: "12.3" is 123, "12" is 120, "007" is 70.
///
/// The text isn't scaled when it has a point, so "12.34" is 1234 and "12." is 12.
/// @return 0 for a null text and for one without digits
int ConvertFloatStrToInt(const char *text);
/// Takes leading "0" characters off in place; a text of zeros becomes empty. Null does nothing.
void filterHeadZero(char *text);
/// Turns a text of numbers, each behind a "/", into bytes in place, with a NUL behind them.
///
/// "/1/20" becomes the bytes 1 and 20. A number of 257 or more becomes 0, and so does 256. A text
/// that doesn't begin with "/" stays as it is.
/// @param text  ended by a NUL
/// @param size  a "/" at a position below it is replaced by NUL on the way
void numstrtochar(char *text, int size);

// --- texts ---

/// @return the number of "." in the text
int GetStringPointCount(const QString &text);
/// @return the position of the first ".", from 1; length + 1 without one
int GetStringPointIndex(const QString &text);
/// @return whether the text contains one of "1" to "9"; "0" doesn't count, so "000" gives false
bool ExistNumericString(const QString &text);
/// Copies all units but U+0020 and ends them with a 0; ideographic spaces stay.
/// @param out  room for length + 1 units
/// @return the number of units copied, without the 0; 0 for a null buffer
int RemoveAllSpaces(const QString &text, unsigned short *out);
/// @return whether every unit is U+0020 or U+3000; true for an empty text
bool IsAllSpace(const QString &text);
/// Appends the fields of a text, empty ones too; LF separates as well as the separator.
///
/// Only as many bytes of the UTF-8 form are read as the text has UTF-16 units, so that a text with
/// multi-byte characters is cut short; a character broken by the cut is dropped. An empty text is
/// one empty field. A null array or text does nothing.
void getStringBySeparator(QStringList *array, const QString &text, char separator);
/// Appends the text unless an element is equal (canonically equivalent). A null argument does
/// nothing.
void AddNoRepeatStrToArray(QStringList *array, const QString &text);
/// Sets a text to null. A null pointer does nothing.
void ReleaseCFString(QString *text);
/// @return a copy, cut at a whole character within 255 bytes of UTF-8; null for a null text
QString NSStringCreateWithCFString(const QString &text);

// --- widths in display cells ---

/// @return the sum over UTF-16 units: 1 for U+0000 to U+007F, else 2
int GetStringLength(const QString &text);
/// @param text  UTF-8
/// @return the sum over UTF-16 units: 1 below U+0100, else 2; 0 for a null or invalid text
int GetUTF8StringLength(const char *text);
/// @return the longest start of the text, by UTF-16 unit, whose GetStringLength doesn't exceed the
///         limit; never null
QString GetShortenString(const QString &text, int limit);

// --- comparators, for sorting ---

/// Compares integer values: numbers are truncated, texts read as leading blanks, sign and digits
/// (0 without digits, held within 32 bits).
/// @return -1, 0 or 1
int numCompare(const QVariant &left, const QVariant &right);
/// Compares the first elements of two lists; no element counts as 0.
int pageNumCompare(const QVariantList &left, const QVariantList &right);
/// Compares the values under a key; no value counts as 0.
int pageNumCompareDict(const QVariantMap &left, const QVariantMap &right, const QString &key);
