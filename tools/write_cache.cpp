#include "platform/file_content.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "tools/commands.h"
#include "tools/inputs.h"
#include "tools/progress.h"
#include "tools/tool_error.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <ostream>
#include <streambuf>
#include <vector>

namespace cdf {
namespace {

volatile std::sig_atomic_t stopSignal = 0;

void askToStop(int signal) {
    stopSignal = signal;
}

/// Hands what the writer makes to the file, and counts the entries that went by.
class CacheBuffer : public std::streambuf {
public:
    CacheBuffer(QSaveFile &file, size_t sections, Progress &progress)
        : m_file(file), m_entryLines(2 * sections), m_progress(progress) {
        setp(m_bytes.data(), m_bytes.data() + m_bytes.size());
    }
    /// "@" in all entry lines.
    uint64_t delimiters() const { return m_delimiters; }

protected:
    int_type overflow(int_type c) override {
        sync();
        return traits_type::eq_int_type(c, traits_type::eof()) ? traits_type::not_eof(c)
                                                               : sputc(static_cast<char>(c));
    }
    int sync() override {
        if (stopSignal)
            throw Stopped{stopSignal};
        for (const char *c = pbase(); c != pptr() && m_lines < m_entryLines; ++c) {
            m_lines += *c == '\n';
            m_delimiters += *c == '@';
        }
        const auto size = pptr() - pbase();
        if (m_file.write(pbase(), size) != size)
            throw ToolError(m_file.fileName(), reasonOf(m_file));
        setp(m_bytes.data(), m_bytes.data() + m_bytes.size());
        m_progress.reach(m_delimiters / 4);
        return 0;
    }

private:
    QSaveFile &m_file;
    size_t m_entryLines; ///< lines before the stamp
    Progress &m_progress;
    size_t m_lines = 0;
    uint64_t m_delimiters = 0;
    std::array<char, 65536> m_bytes;
};

uint64_t entriesFor(ppd_file_t *ppd, const std::list<std::string> &keys) {
    hash_multimap table;
    addConstraintsOf(ppd, &table, keys);
    return table.size();
}

} // namespace

void writeCache(const CommandLine &line) {
    if (const QString refusal = refusalToReplace(line.cache, {line.ppd, line.keys});
        !refusal.isNull())
        throw ToolError(line.cache, refusal);
    const PpdFile ppd = openPpd(line.ppd);
    std::list<std::string> keys = watchedKeys(line.keys);
    const QStringList &wanted = line.sections.isEmpty() ? kPanelSections : line.sections;
    std::vector<std::string> names(wanted.size());
    std::ranges::transform(wanted, names.begin(), &QString::toStdString);
    std::vector<x_PDEConstr> sections(names.size() + 1); // the last one ends them
    for (size_t i = 0; i < names.size(); ++i)
        sections[i] = {&names[i], &keys};

    for (int signal : {SIGINT, SIGTERM, SIGHUP})
        if (std::signal(signal, askToStop) == SIG_IGN)
            std::signal(signal, SIG_IGN); // as nohup asks
    QSaveFile file(line.cache);
    if (!file.open(QIODevice::WriteOnly))
        throw ToolError(line.cache, file.errorString());
    const uint64_t entries = entriesFor(ppd.ppd.get(), keys) * names.size();
    const auto copy = copyWithCarriageReturns(ppd.text);
    std::string copyPath = copy->fileName().toStdString();
    {
        Progress progress("writing", entries, line.progress);
        CacheBuffer buffer(file, names.size(), progress);
        std::ostream out(&buffer);
        out.exceptions(std::ios::badbit); // the first failed write ends the walk through the table
        hash_multimap table;
        CQuickXPPD cache(ppd.ppd.get(), &table, sections.data(), &copyPath);
        out << cache << std::flush;
        if (buffer.delimiters() != 4 * entries)
            throw ToolError(line.ppd, QStringLiteral("a constraint names an option or choice with "
                                                     "\"@\", which a cache file can't hold"));
        progress.reach(entries);
    }
    if (!commitWhole(file))
        throw ToolError(line.cache, reasonOf(file));
    if (!ppd.text.contains(QByteArray::fromStdString(STRPPDSTAMP)))
        std::fprintf(stderr, "cdf-tool: %s: no \"%s\" line, the cache has no stamp\n",
                     qUtf8Printable(line.ppd), STRPPDSTAMP.c_str());
}

} // namespace cdf
