#pragma once

#include "support/run_program.h"

#include <QRegularExpression>

using HostRun = ProgramRun;

/// Runs pde-host to its end, see runProgram.
inline HostRun runHost(const QStringList &arguments, const QString &folder,
                       const QByteArray &input = {}, const QStringList &environment = {}) {
    return runProgram(QStringLiteral(HOST_PROGRAM), arguments, folder, input, environment);
}

/// A conforming PostScript document of one page.
inline constexpr char kSmallDocument[] = "%!PS-Adobe-3.0\n%%Pages: 1\n%%EndComments\n%%Page: 1 1\n"
                                         "showpage\n%%EOF\n";

/// The features of a PostScript job, "*Keyword Choice", in order; page features of later pages too.
inline QStringList printedFeatures(const QByteArray &job) {
    static const QRegularExpression pattern("^%%BeginFeature: (\\*\\S+ \\S+)",
                                            QRegularExpression::MultilineOption);
    QStringList found;
    for (auto match = pattern.globalMatch(QString::fromLatin1(job)); match.hasNext();)
        found.append(match.next().captured(1));
    found.removeDuplicates();
    return found;
}
