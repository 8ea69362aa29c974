#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What one run of a program left.
struct ProgramRun {
    int exitCode = -1; ///< -1 when it crashed or didn't end in time
    QByteArray out, err;
};

/// Runs a program to its end.
/// @param folder       its current folder
/// @param environment  "NAME=value", in place of what the tests' own environment has
ProgramRun runProgram(const QString &program, const QStringList &arguments, const QString &folder,
                      const QByteArray &input = {}, const QStringList &environment = {});

/// Writes a file in a folder. @return its path; null on failure
QString writeFile(const QString &folder, const QString &name, const QByteArray &content);
QByteArray readFile(const QString &path);
