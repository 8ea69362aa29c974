#pragma once

namespace host {

struct CommandLine;

/// The command "inspect": prints the state of the freshly opened panel. @throw HostError
void inspect(const CommandLine &line);

/// The command "list": prints each queue of CUPS on a line of its own, a tab, and "panel" or
/// "no panel"; for a queue whose PPD can't be had, the reason behind another tab. @throw HostError
void listQueues(const CommandLine &line);

} // namespace host
