#pragma once

namespace host {

struct CommandLine;

/// The command "serve": obeys JSON commands of a program that prints, from standard input until
/// that ends, and answers each with one line on standard output, in order. No window is shown, and
/// each answer comes within its deadline. @throw HostError before the first command is read
void serve(const CommandLine &line);

} // namespace host
