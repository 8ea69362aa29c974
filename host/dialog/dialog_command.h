#pragma once

namespace host {

struct CommandLine;

/// The command "dialog". @throw HostError before the dialog is shown
void dialog(const CommandLine &line);

} // namespace host
