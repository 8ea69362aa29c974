#pragma once

#include <QString>

#include <exception>

namespace cdf {

/// Why a command can't go on: one line on standard error, and exit code 2.
class ToolError : public std::exception {
public:
    /// @param subject  the file or argument, as the user wrote it
    /// @param reason   half a sentence; line breaks become spaces
    ToolError(const QString &subject, const QString &reason)
        : m_text((subject + QStringLiteral(": ") + reason).simplified().toUtf8()) {}

    /// "SUBJECT: reason" in UTF-8.
    const char *what() const noexcept override { return m_text.constData(); }

private:
    QByteArray m_text;
};

/// Ends a command that a signal asked to stop, so that it leaves no temporary file.
struct Stopped {
    int signal;
};

} // namespace cdf
