#pragma once

#include "tools/command_line.h"

namespace cdf {

// The commands. Each throws ToolError at bad input.

/// Writes the cache file. It appears whole, or what stood there stays.
void writeCache(const CommandLine &line);
/// Prints a cache file's entries in words.
void listCache(const CommandLine &line);
/// Holds a cache file against its PPD and prints what differs. @return whether nothing does
bool checkCache(const CommandLine &line);

/// Prints a line on standard output. @throw ToolError when that can't be written
void say(const QString &text);

} // namespace cdf
