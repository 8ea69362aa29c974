#pragma once

namespace host {

struct CommandLine;

/// The command "drive": obeys JSON commands from standard input until that ends, and answers each
/// with one line on standard output. @throw HostError before the first command is read
void drive(const CommandLine &line);

} // namespace host
