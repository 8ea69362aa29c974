#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace host {

enum class Command { Help, Dialog, Print, Inspect, Drive, List, Serve };

/// What the user asked for. A text that wasn't given is null.
struct CommandLine {
    Command command = Command::Help;
    QString ppd;      ///< path of a PPD file; at most one of `ppd` and `queue` is set
    QString queue;    ///< name of a CUPS queue
    QString bundle;   ///< directory of the panel's bundle
    QString to;       ///< PostScript file to write
    QString ticket;   ///< JSON file for the print settings
    QString summary;  ///< JSON file for the panel's summary
    QString shot;     ///< PNG file for a picture of the panel's window
    QString language; ///< language code, such as "de"
    QString document; ///< PostScript or PDF file
    QString preset;   ///< name of a preset of the queue
    QString check;    ///< path of a PPD file that is looked at for its maker
    bool shown = false;
    bool presets = false;                    ///< list presets instead of queues
    bool json = false;                       ///< findings as JSON
    QList<QPair<QString, QString>> marks;    ///< PPD option and choice, in order
    QList<QPair<QString, QString>> settings; ///< key and value, in order
};

/// Reads the arguments behind the program's name.
/// @throw HostError with the argument that is wrong
CommandLine parseCommandLine(const QStringList &arguments);

/// The usage text, with its line ends.
QString usage();

} // namespace host
