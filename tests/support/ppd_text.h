#pragma once

#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// Opens a PPD that consists of a valid head, the given lines and nothing else; defaults marked.
/// The test fails, and null is returned, when libcups refuses it.
/// @param body      lines, each with its LF
/// @param encoding  the value of *LanguageEncoding
PpdPtr openPpdText(const QByteArray &body, const QByteArray &encoding = "UTF-8");

/// A PickOne option with its choices in order; the first `defaultChoice` of them is the default.
/// A choice is its keyword; its label is the keyword with " label" behind it.
QByteArray ppdOption(const QByteArray &keyword, const QList<QByteArray> &choices,
                     const QByteArray &defaultChoice = {}, const QByteArray &title = {});

/// Opens a queue of the samples folder, by its file name; defaults marked.
PpdPtr openSample(const QString &fileName);
/// Path of a sample queue.
QString samplePath(const QString &fileName);
