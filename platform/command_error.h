#pragma once

#include "platform/export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <exception>

/// A text on a terminal: each character that isn't printable is shown as "\x1b".
PDE_PLATFORM_EXPORT QString printable(const QString &text);

/// Why a command of a program can't go on: what it is about, and the reason, in one line.
///
/// Thrown by everything that reads, converts or sends, and caught where the command started; never
/// thrown through an event loop or a panel's callback.
class PDE_PLATFORM_EXPORT CommandError : public std::exception {
public:
    /// @param subject  the file, queue or argument, as the user wrote it
    /// @param reason   half a sentence; line breaks become spaces
    CommandError(const QString &subject, const QString &reason);

    /// "SUBJECT: reason", one line without its end.
    const QString &text() const { return m_text; }
    /// The same in UTF-8.
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_text;
    QByteArray m_utf8;
};

/// The arguments behind a program's name.
/// @throw CommandError for one that isn't text in the locale's encoding: the file that it may name
///        couldn't be found under the text that stands for it
PDE_PLATFORM_EXPORT QStringList programArguments(int argc, char **argv);
