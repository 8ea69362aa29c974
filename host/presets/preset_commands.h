#pragma once

#include <QMap>
#include <QString>

namespace host {

struct CommandLine;
class PanelStage;

/// Tells of something that doesn't keep a command from going on, in a line on standard error.
void warn(const QString &subject, const QString &reason);

/// Applies the preset that the command line names to a stage whose queue's defaults are marked.
/// What can't be applied is told on standard error, a line each. A print setting that the command
/// line names, too, is left to it.
/// @return the options of the job that are none of the PPD; empty without a preset
/// @throw HostError for a preset that isn't there or can't be read
QMap<QString, QString> useNamedPreset(const CommandLine &line, PanelStage &stage);

/// The command "list --presets": prints the queue and the name of each preset on a line of its own,
/// with a tab between; for one that can't be used the reason behind another tab. Asks no print
/// server. @throw HostError
void listPresets(const CommandLine &line);

} // namespace host
