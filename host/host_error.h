#pragma once

#include <QString>

#include <exception>

namespace host {

/// Why a command of the host can't go on: what it is about, and the reason.
///
/// Thrown by everything that reads, converts or sends, and caught where the command started; never
/// thrown through an event loop or a panel's callback.
class HostError : public std::exception {
public:
    /// @param subject  the file, queue or argument, as the user wrote it
    /// @param reason   half a sentence; line breaks become spaces
    HostError(const QString &subject, const QString &reason)
        : m_text((subject + QStringLiteral(": ") + reason).simplified()), m_utf8(m_text.toUtf8()) {}

    /// "SUBJECT: reason", one line without its end.
    const QString &text() const { return m_text; }
    const char *what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_text;
    QByteArray m_utf8;
};

} // namespace host
