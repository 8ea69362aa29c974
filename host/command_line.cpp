#include "host/command_line.h"

#include "host/host_error.h"

#include <QLocale>

#include <algorithm>
#include <iterator>

namespace host {
namespace {

struct CommandRow {
    const char *name;
    Command command;
    bool takesDocument;
};

constexpr CommandRow kCommands[] = {
    {"dialog", Command::Dialog, true},    {"print", Command::Print, true},
    {"inspect", Command::Inspect, false}, {"drive", Command::Drive, false},
    {"list", Command::List, false},       {"serve", Command::Serve, false},
};

constexpr unsigned bit(Command command) {
    return 1u << static_cast<unsigned>(command);
}
constexpr unsigned kDialog = bit(Command::Dialog), kPrint = bit(Command::Print),
                   kInspect = bit(Command::Inspect), kDrive = bit(Command::Drive),
                   kList = bit(Command::List), kServe = bit(Command::Serve);

/// An option: where its value goes, and the commands that take it.
struct OptionRow {
    const char *name;
    unsigned commands;
    QString CommandLine::*text;
    QList<QPair<QString, QString>> CommandLine::*pairs;
};

const OptionRow kOptions[] = {
    {"--ppd", kDialog | kPrint | kInspect | kDrive, &CommandLine::ppd, nullptr},
    {"--queue", kDialog | kPrint | kList, &CommandLine::queue, nullptr},
    {"--preset", kPrint, &CommandLine::preset, nullptr},
    {"--check", kInspect, &CommandLine::check, nullptr},
    {"--bundle", kDialog | kPrint | kInspect | kDrive | kList | kServe, &CommandLine::bundle,
     nullptr},
    {"--language", kDialog | kPrint | kInspect | kDrive | kServe, &CommandLine::language, nullptr},
    {"--to", kPrint, &CommandLine::to, nullptr},
    {"--ticket", kPrint, &CommandLine::ticket, nullptr},
    {"--summary", kPrint, &CommandLine::summary, nullptr},
    {"--shot", kPrint, &CommandLine::shot, nullptr},
    {"-o", kPrint | kDrive, nullptr, &CommandLine::marks},
    {"--setting", kPrint | kDrive, nullptr, &CommandLine::settings},
};

[[noreturn]] void wrong(const QString &argument, const char *reason) {
    throw HostError(argument, QString::fromUtf8(reason) +
                                  QStringLiteral(" (pde-host --help tells the usage)"));
}

void takeOption(CommandLine &line, const OptionRow &row, const QString &name,
                const QString &value) {
    if (row.text) {
        if (value.isEmpty())
            wrong(name, "needs a value");
        if (!(line.*row.text).isNull())
            wrong(name, "is given twice");
        line.*row.text = value;
        return;
    }
    const qsizetype equals = value.indexOf(u'=');
    if (equals <= 0)
        wrong(name + u' ' + value, "is not of the form KEY=VALUE");
    (line.*row.pairs).append({value.left(equals), value.mid(equals + 1)});
}

void checkTogether(const CommandLine &line) {
    if (!line.ppd.isNull() && !line.queue.isNull())
        wrong(QStringLiteral("--queue"), "can't be given together with --ppd");
    if (!line.language.isNull() && QLocale(line.language).language() == QLocale::C)
        wrong(QStringLiteral("--language ") + line.language, "is no language code");
    switch (line.command) {
    case Command::Print:
        if (line.ppd.isNull() && line.queue.isNull())
            wrong(QStringLiteral("print"), "needs --ppd FILE or --queue NAME");
        if (line.document.isNull())
            wrong(QStringLiteral("print"), "needs a DOCUMENT");
        if (!line.shown && !line.summary.isNull())
            wrong(QStringLiteral("--summary"), "needs --shown");
        if (!line.shown && !line.shot.isNull())
            wrong(QStringLiteral("--shot"), "needs --shown");
        break;
    case Command::Inspect:
        if (line.ppd.isNull() == line.check.isNull())
            wrong(QStringLiteral("inspect"), "needs --ppd FILE or --check FILE");
        if (line.json && line.check.isNull())
            wrong(QStringLiteral("--json"), "needs --check");
        break;
    case Command::Drive:
        if (line.ppd.isNull())
            wrong(QStringLiteral("drive"), "needs --ppd FILE");
        break;
    case Command::List:
        if (!line.presets && !line.queue.isNull())
            wrong(QStringLiteral("--queue"), "needs --presets");
        break;
    default:
        break;
    }
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments) {
    CommandLine line;
    if (arguments.isEmpty())
        wrong(QStringLiteral("command"), "is missing");
    if (arguments.contains(QStringLiteral("--help")))
        return line;
    const QString &word = arguments.first();
    const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                      [&](const CommandRow &row) { return word == row.name; });
    if (command == std::end(kCommands))
        wrong(word, "is no command");
    line.command = command->command;

    bool optionsEnded = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (!optionsEnded && argument == u"--") {
            optionsEnded = true;
        } else if (!optionsEnded && argument == u"--shown" && line.command == Command::Print) {
            line.shown = true;
        } else if (!optionsEnded && argument == u"--presets" && line.command == Command::List) {
            line.presets = true;
        } else if (!optionsEnded && argument == u"--json" && line.command == Command::Inspect) {
            line.json = true;
        } else if (!optionsEnded && argument.startsWith(u'-')) {
            const auto row = std::find_if(std::begin(kOptions), std::end(kOptions),
                                          [&](const OptionRow &o) { return argument == o.name; });
            if (row == std::end(kOptions) || !(row->commands & bit(line.command)))
                wrong(argument, "is no option of this command");
            if (++i == arguments.size())
                wrong(argument, "needs a value");
            takeOption(line, *row, argument, arguments[i]);
        } else if (!command->takesDocument || !line.document.isNull()) {
            wrong(argument, "is one argument too many");
        } else if (argument.isEmpty()) {
            wrong(QStringLiteral("DOCUMENT"), "is empty");
        } else {
            line.document = argument;
        }
    }
    checkTogether(line);
    return line;
}

QString usage() {
    return QStringLiteral(R"(usage:
  pde-host dialog  [--ppd FILE | --queue NAME] [--bundle DIR] [DOCUMENT]
  pde-host print   --ppd FILE | --queue NAME [--bundle DIR] [--preset NAME]
                   [-o KEY=CHOICE]... [--setting KEY=VALUE]...
                   [--to FILE.ps] [--ticket FILE.json]
                   [--shown [--summary FILE.json] [--shot FILE.png]] DOCUMENT
  pde-host inspect --ppd FILE [--bundle DIR]
  pde-host inspect --check FILE [--json] [--bundle DIR]
  pde-host drive   --ppd FILE [--bundle DIR] [-o KEY=CHOICE]... [--setting KEY=VALUE]...
  pde-host serve   [--bundle DIR]
  pde-host list    [--bundle DIR]
  pde-host list    --presets [--queue NAME]

  dialog   shows the print dialog; without a queue, that of CUPS' default queue
  print    prints unattended: to a file, or with --queue and no --to to CUPS
  inspect  prints the panel's state as JSON; or tells the maker of a PPD what will
           not work, and then ends with 1 if there is anything
  drive    obeys JSON commands from standard input, one to a line: open, state,
           summary, select, click, step, slide, type, mark, setting, willShow,
           restore, shouldPrint, save, print, help, shot, alert, close
  serve    prints for programs, without a window: obeys JSON commands from standard
           input, one to a line: list, queue, check, print, job, cancel
  list     prints the queues of CUPS, and which have the panel; or the presets
           that are kept for queues, or for one

  --ppd FILE            a PPD file stands for the queue
  --queue NAME          a queue of CUPS
  --check FILE          a PPD file to look at
  --json                tells it as JSON
  --bundle DIR          the panel's bundle; else the one beside the program
  --preset NAME         a preset of the queue goes before -o and --setting
  --language CODE       language of the panel, such as "de"
  -o KEY=CHOICE         marks a PPD choice before the panel opens
  --setting KEY=VALUE   puts a value into the print settings
  --to FILE.ps          writes the job to a file; without it and --queue, to the
                        document's name with ".ps" in the current folder
  --ticket FILE.json    writes the print settings
  --shown               takes the road of a dialog that shows the panel
  --summary FILE.json   writes the panel's summary
  --shot FILE.png       writes a picture of the panel's window
)");
}

} // namespace host
