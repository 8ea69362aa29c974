#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

#include <cstring>

/// The options of a job as CUPS' scheduler hands them to a filter: words, parted by blanks, in
/// which these bytes have a backslash in front.
/// @param escaped  the bytes; fewer than these make a scheduler that is broken
inline QByteArray filterOptions(const QList<QPair<QString, QString>> &options,
                                const char *escaped = " \t\n\\'\"") {
    QByteArray line;
    for (const auto &[name, value] : options) {
        line += (line.isEmpty() ? "" : " ") + name.toUtf8() + '=';
        for (const char c : value.toUtf8()) {
            if (c != 0 && std::strchr(escaped, c))
                line += '\\';
            line += c;
        }
    }
    return line;
}
