#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What one run of pde-host left.
struct HostRun {
    int exitCode = -1; ///< -1 when it crashed or didn't end in time
    QByteArray out, err;
};

/// Runs the program to its end.
/// @param folder       its current folder
/// @param environment  "NAME=value", in place of what the tests' own environment has
HostRun runHost(const QStringList &arguments, const QString &folder, const QByteArray &input = {},
                const QStringList &environment = {});

/// Writes a file in a folder. @return its path
QString writeFile(const QString &folder, const QString &name, const QByteArray &content);
QByteArray readFile(const QString &path);

/// A conforming PostScript document of one page.
inline constexpr char kSmallDocument[] = "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                                         "showpage\n%%EOF\n";
