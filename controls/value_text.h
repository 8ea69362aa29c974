#pragma once

#include "controls/data_block.h"
#include "platform/numbers.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <cstdint>

/// The decimal text of an integer value, as preferences and ticket hold it.
/// @param buffer  receives the text, ended by zero
/// @param size    the buffer's size in bytes
/// @return false without a block or a buffer, or if the text doesn't fit
bool integerToText(const CtrlDataBlk *block, char *buffer, int size);

/// Reads a decimal text into a block, as leadingInteger does.
/// @return false without a text or a block
bool integerFromText(const char *text, CtrlDataBlk *block);

/// Summary texts of check boxes, steppers and output modes pass through a buffer of 24 bytes.
inline constexpr int kSummaryTextBytes = 23;

/// Adds a row to a summary where all four are there: the text under its title, and the title at the
/// end of the order.
void addSummaryRow(const QString &title, const QString &text, QVariantMap *summary,
                   QStringList *orderArray);
