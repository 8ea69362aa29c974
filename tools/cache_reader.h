#pragma once

#include "ppd/hash_multimap.h"
#include "ppd/regular_file.h"

#include <QString>

#include <map>
#include <string>

namespace cdf {

/// Bytes of a section's name or a field: beyond any name that a PPD holds, and a PPD's lines.
inline constexpr size_t kGreatestText = 1024;

/// The entries of one key that stand next to each other in a section, with repeats counted.
struct CacheRun {
    std::string key; ///< empty in entries that the panel drops
    std::map<x_constraints, uint64_t> places;
    /// "group@option@choice" of entries in which one isn't a number below 65536.
    std::map<std::string, uint64_t> unreadable;
    uint64_t size = 0; ///< entries
};

/// Reads a cache file (ppd/constraint_cache.h) piece by piece; no more of it than one run is in
/// memory. Stricter than the panel's reader: it tells what the panel passes over.
///
/// A file that goes wrong somewhere gives what stands before that place, and then a fault.
class CacheReader {
public:
    /// @throw ToolError when the path isn't that of a readable regular file
    explicit CacheReader(const QString &path);

    /// Moves on to the next section, over the rest of this one.
    /// @return false at the last section's end, or at a fault
    bool nextSection();
    /// The section's name.
    const std::string &section() const { return m_section; }
    /// Takes the section's next run. @return false at the section's end, or at a fault
    bool nextRun(CacheRun &run);

    /// What stands behind the last section; empty before it was reached. Of an endless text just
    /// the beginning.
    const std::string &stamp() const { return m_stamp; }
    /// Where and why the reading ended early, half a sentence; null when it didn't.
    const QString &fault() const { return m_fault; }
    /// Whether a section's end or an entry was found so far. If not, a fault means that the file
    /// is no cache at all.
    bool foundAny() const { return m_foundAny; }

    uint64_t position() const { return m_position; } ///< bytes read so far
    uint64_t fileSize() const { return m_fileSize; }

private:
    struct Entry {
        std::string key, group, option, choice;
    };

    bool nextEntry();
    bool takeField(std::string &field);
    int take();

    RegularFileStream m_file;
    uint64_t m_fileSize;
    uint64_t m_position = 0;
    std::string m_section, m_stamp;
    Entry m_entry;
    bool m_entryIsAhead = false; ///< m_entry was read, but belongs to the next run
    bool m_inSection = false;
    uint64_t m_entryCount = 0; ///< in this section
    bool m_foundAny = false;
    QString m_fault;
};

} // namespace cdf
