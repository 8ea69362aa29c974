#include "ppd/conflicts.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "tools/cache_reader.h"
#include "tools/commands.h"
#include "tools/entry_words.h"
#include "tools/inputs.h"
#include "tools/progress.h"
#include "tools/tool_error.h"

#include <sstream>

namespace cdf {
namespace {

struct Count {
    uint64_t fresh = 0;
    uint64_t cached = 0;
};
/// The distinct entries of a fresh table. Repeats are numbers, so that a table of millions is
/// small; what only the cache has is told at once and never kept.
using Counts = std::map<std::string, std::map<x_constraints, Count>, std::less<>>;

Counts countFresh(ppd_file_t *ppd, const std::list<std::string> &keys, bool progressAsked) {
    hash_multimap table;
    addConstraintsOf(ppd, &table, keys);
    Progress progress("making a fresh table", table.size(), progressAsked);
    Counts counts;
    auto key = counts.end();
    uint64_t done = 0;
    table.forEach([&](std::string_view name, x_constraints place) {
        if (key == counts.end() || key->first != name)
            key = counts.try_emplace(std::string(name)).first;
        ++key->second[place].fresh;
        progress.reach(++done);
    });
    return counts;
}

std::string stampOf(const PpdFile &ppd) {
    const auto copy = copyWithCarriageReturns(ppd.text);
    std::string path = copy->fileName().toStdString();
    std::ostringstream out;
    CQuickXPPD(nullptr, nullptr, nullptr, &path).SetFileStamp(out);
    return out.str();
}

QString times(uint64_t count) {
    return count == 1 ? QStringLiteral("once") : QStringLiteral("%1 times").arg(count);
}

class Check {
public:
    explicit Check(const CommandLine &line)
        : m_line(line), m_reader(line.cache), m_ppd(openPpd(line.ppd)), m_words(m_ppd.ppd.get()),
          m_fresh(countFresh(m_ppd.ppd.get(), watchedKeys(line.keys), line.progress)) {}

    bool run() {
        {
            Progress progress("reading the cache", m_reader.fileSize(), m_line.progress);
            while (m_reader.nextSection())
                checkSection(QString::fromStdString(m_reader.section()), progress);
            progress.reach(m_reader.position());
        }
        if (!m_reader.fault().isNull()) {
            if (!m_reader.foundAny())
                throw ToolError(m_line.cache, m_reader.fault());
            differs(m_reader.fault() + QStringLiteral("; nothing behind that was checked"));
            return false;
        }
        const QStringList wanted = m_line.sections.isEmpty() ? kPanelSections : m_line.sections;
        for (const QString &section : wanted)
            if (!m_seen.contains(section))
                differs(QStringLiteral("section %1 is missing").arg(section));
        checkStamp();
        return m_equal;
    }

private:
    void differs(const QString &what) {
        m_equal = false;
        say(what);
    }

    void checkSection(const QString &section, Progress &progress) {
        if (!m_line.sections.isEmpty() && !m_line.sections.contains(section))
            return;
        const QString shown = QStringLiteral("section %1: ").arg(printable(m_reader.section()));
        if (m_seen.contains(section)) {
            differs(shown + QStringLiteral("stands twice; the panel reads the first one"));
            return;
        }
        m_seen.append(section);

        bool equal = true;
        const auto sectionDiffers = [&](const QString &words, uint64_t cached, uint64_t fresh) {
            equal = false;
            differs(shown + words +
                    QStringLiteral(": %1 in the cache, %2 in a fresh table")
                        .arg(cached ? times(cached) : QStringLiteral("not"),
                             fresh ? times(fresh) : QStringLiteral("not")));
        };
        uint64_t entries = 0;
        for (CacheRun run; m_reader.nextRun(run); entries += run.size) {
            const auto key = m_fresh.find(run.key);
            for (const auto &[place, count] : run.places) {
                if (key != m_fresh.end())
                    if (const auto known = key->second.find(place); known != key->second.end()) {
                        known->second.cached += count;
                        continue;
                    }
                sectionDiffers(m_words(run.key, place), count, 0);
            }
            for (const auto &[text, count] : run.unreadable)
                sectionDiffers(m_words(run.key, text), count, 0);
            progress.reach(m_reader.position());
        }
        const bool whole = m_reader.fault().isNull();
        for (auto &[key, places] : m_fresh)
            for (auto &[place, count] : places) {
                if (whole && count.cached != count.fresh)
                    sectionDiffers(m_words(key, place), count.cached, count.fresh);
                count.cached = 0;
            }
        if (whole && equal)
            say(shown + entriesText(entries) + QStringLiteral(", equal"));
    }

    void checkStamp() {
        const std::string expected = stampOf(m_ppd), &found = m_reader.stamp();
        const auto shown = [](const std::string &stamp) {
            return stamp.empty() ? QStringLiteral("none") : u'"' + printable(stamp) + u'"';
        };
        if (found == expected)
            say(QStringLiteral("stamp: %1, equal").arg(shown(found)));
        else
            differs(QStringLiteral("stamp: %1 in the cache, %2 in the PPD")
                        .arg(shown(found), shown(expected)));
    }

    const CommandLine &m_line;
    CacheReader m_reader;
    PpdFile m_ppd;
    EntryWords m_words;
    Counts m_fresh;
    QStringList m_seen;
    bool m_equal = true;
};

} // namespace

bool checkCache(const CommandLine &line) {
    return Check(line).run();
}

} // namespace cdf
