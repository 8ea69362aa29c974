#include "tools/command_line.h"

#include "ppd/constraint_cache.h"
#include "tools/cache_reader.h"
#include "tools/tool_error.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iterator>

namespace cdf {
namespace {

struct CommandRow {
    const char *name;
    Command command;
    QString CommandLine::*argument; ///< where the one argument goes
    const char *argumentName;
};
const CommandRow kCommands[] = {
    {"write", Command::Write, &CommandLine::ppd, "PPD"},
    {"list", Command::List, &CommandLine::cache, "FILE"},
    {"check", Command::Check, &CommandLine::cache, "FILE"},
};

constexpr unsigned bit(Command command) {
    return 1u << static_cast<unsigned>(command);
}
constexpr unsigned kWrite = bit(Command::Write), kList = bit(Command::List),
                   kCheck = bit(Command::Check), kAll = kWrite | kList | kCheck;

struct OptionRow {
    const char *name;
    const char *value; ///< null for an option without one
    unsigned takenBy;
    unsigned neededBy;
    QString CommandLine::*text; ///< null for an option with more than one value
};
const OptionRow kOptions[] = {
    {"o", "FILE", kWrite, kWrite, &CommandLine::cache},
    {"ppd", "PPD", kList | kCheck, kCheck, &CommandLine::ppd},
    {"keys", "FILE", kWrite | kCheck, 0, &CommandLine::keys},
    {"section", "NAME", kAll, 0, nullptr},
    {"progress", nullptr, kAll, 0, nullptr},
};

[[noreturn]] void wrong(const QString &subject, const QString &reason) {
    throw ToolError(subject, reason + QStringLiteral(" (cdf-tool --help tells the usage)"));
}

/// A name is a line of its own in the file, never one that could be an entry or the stamp.
void takeSection(CommandLine &line, const QString &name) {
    const bool printable = std::ranges::all_of(name, [](QChar c) { return c.isPrint(); });
    if (!printable || name.contains(u'@') || name.startsWith(u'*') ||
        name.contains(QString::fromStdString(STRPPDSTAMP)) ||
        size_t(name.toUtf8().size()) >= kGreatestText)
        wrong(QStringLiteral("--section ") + name, QStringLiteral("can't be a section's name"));
    if (line.sections.contains(name))
        wrong(QStringLiteral("--section ") + name, QStringLiteral("is given twice"));
    line.sections.append(name);
    if (line.sections.size() > qsizetype(CQuickXPPD::kMaxSections))
        wrong(QStringLiteral("--section"),
              QStringLiteral("is given more than %1 times").arg(CQuickXPPD::kMaxSections));
}

void takeOption(CommandLine &line, const OptionRow &row, const QStringList &values) {
    const QString shown = (row.name[1] ? QStringLiteral("--") : QStringLiteral("-")) + row.name;
    if (!(row.takenBy & bit(line.command)))
        wrong(shown, QStringLiteral("is no option of this command"));
    if (row.value && values.contains(QString()))
        wrong(shown, QStringLiteral("needs a value"));
    if (row.text) {
        if (values.size() > 1)
            wrong(shown, QStringLiteral("is given twice"));
        line.*row.text = values.first();
    } else if (row.value) {
        for (const QString &value : values)
            takeSection(line, value);
    } else {
        line.progress = true;
    }
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments) {
    QCommandLineParser parser;
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, {}});
    for (const OptionRow &row : kOptions)
        parser.addOption({QString::fromUtf8(row.name), {}, QString::fromUtf8(row.value)});
    const bool understood = parser.parse(QStringList(QStringLiteral("cdf-tool")) + arguments);

    CommandLine line;
    if (parser.isSet(QStringLiteral("help")))
        return line;
    const QStringList words = parser.positionalArguments();
    if (!understood)
        wrong(QStringLiteral("arguments"), parser.errorText().chopped(1)); // without its full stop
    if (words.isEmpty())
        wrong(QStringLiteral("command"), QStringLiteral("is missing"));
    const auto command = std::ranges::find_if(
        kCommands, [&](const CommandRow &row) { return words.first() == row.name; });
    if (command == std::end(kCommands))
        wrong(words.first(), QStringLiteral("is no command"));
    line.command = command->command;
    const QString name = QString::fromUtf8(command->name);
    if (words.size() < 2 || words[1].isEmpty())
        wrong(name, QStringLiteral("needs a ") + command->argumentName);
    if (words.size() > 2)
        wrong(words[2], QStringLiteral("is one argument too many"));
    line.*command->argument = words[1];

    for (const OptionRow &row : kOptions) {
        const QString option = QString::fromUtf8(row.name);
        if (parser.isSet(option))
            takeOption(line, row, parser.values(option));
        else if (row.neededBy & bit(line.command))
            wrong(
                name,
                QStringLiteral("needs %1%2 %3").arg(row.name[1] ? "--" : "-", row.name, row.value));
    }
    return line;
}

const char *usage() {
    return R"(usage:
  cdf-tool write PPD [--section NAME]... [--keys FILE] [--progress] -o FILE
  cdf-tool list FILE [--section NAME]... [--ppd PPD] [--progress]
  cdf-tool check FILE --ppd PPD [--section NAME]... [--keys FILE] [--progress]

  write  writes the constraint cache FILE of a PPD, with two sections:
         ImageOptionPDETiger and ImageOptionPDEPanther
  list   tells which choice forbids which, and the stamp
  check  tells what differs between FILE and the PPD: stamp, indices, entries

  -o FILE         the cache file to write; it appears whole or not at all
  --section NAME  writes, lists or checks this section, and others so named
  --keys FILE     the options whose constraints count, one keyword to a line;
                  without it those of the image options panel
  --ppd PPD       the PPD file, plain or gzipped; list takes its labels
  --progress      shows the progress also where standard error is no terminal

Exit code: 0 done, or equal; 1 the check found differences; 2 bad input.
)";
}

} // namespace cdf
