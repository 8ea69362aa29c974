#pragma once

#include <QString>
#include <QStringList>

namespace cdf {

enum class Command { Help, Write, List, Check };

/// What the user asked for. A text that wasn't given is null.
struct CommandLine {
    Command command = Command::Help;
    QString cache; ///< the cache file
    QString ppd;
    QString keys;         ///< file with the watched options
    QStringList sections; ///< without repeats; empty when none was named
    bool progress = false;
};

/// Reads the arguments behind the program's name.
/// @throw ToolError with the argument that is wrong
CommandLine parseCommandLine(const QStringList &arguments);

/// The usage text, with its line ends.
const char *usage();

} // namespace cdf
