#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// @param text  ended by zero; null counts as empty
/// @return the text, a byte order mark in front included; nothing where the bytes aren't UTF-8 or
///         break off inside a character
PDE_PLATFORM_EXPORT std::optional<QString> strictUtf8(const char *text);

/// @return the text of UTF-8 up to a zero byte, without a character that the bytes' end cuts off;
///         other bytes that aren't UTF-8 are shown as U+FFFD. Never null
PDE_PLATFORM_EXPORT QString wholeCharacters(QByteArrayView utf8);

/// @return the longest start of a text that, as UTF-8, has at most `bytes` bytes and ends at a
///         character; null for a null text
PDE_PLATFORM_EXPORT QString cutToBytes(const QString &text, qsizetype bytes);
