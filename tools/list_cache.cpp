#include "tools/cache_reader.h"
#include "tools/commands.h"
#include "tools/entry_words.h"
#include "tools/inputs.h"
#include "tools/progress.h"
#include "tools/tool_error.h"

namespace cdf {
namespace {

void sayEntry(const QString &words, uint64_t count) {
    say(QStringLiteral("  ") + words +
        (count > 1 ? QStringLiteral(", %1 times").arg(count) : QString()));
}

} // namespace

void listCache(const CommandLine &line) {
    CacheReader reader(line.cache);
    const PpdFile ppd = line.ppd.isNull() ? PpdFile() : openPpd(line.ppd);
    const EntryWords words(ppd.ppd.get());
    Progress progress("reading", reader.fileSize(), line.progress);
    QStringList wanted = line.sections;
    while (reader.nextSection()) {
        const QString section = QString::fromStdString(reader.section());
        if (!line.sections.isEmpty() && !line.sections.contains(section))
            continue;
        wanted.removeAll(section);
        say(QStringLiteral("section ") + printable(reader.section()));
        uint64_t entries = 0;
        for (CacheRun run; reader.nextRun(run); entries += run.size) {
            for (const auto &[place, count] : run.places)
                sayEntry(words(run.key, place), count);
            for (const auto &[text, count] : run.unreadable)
                sayEntry(words(run.key, text), count);
            progress.reach(reader.position());
        }
        if (reader.fault().isNull())
            say(QStringLiteral("  ") + entriesText(entries));
    }
    progress.reach(reader.position());
    if (!reader.fault().isNull())
        throw ToolError(line.cache, reader.fault());
    for (const QString &section : wanted)
        throw ToolError(line.cache, QStringLiteral("has no section ") + section);
    say(reader.stamp().empty() ? QStringLiteral("no stamp")
                               : QStringLiteral("stamp ") + printable(reader.stamp()));
}

} // namespace cdf
