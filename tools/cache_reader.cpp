#include "tools/cache_reader.h"

#include "ppd/constraint_cache.h"
#include "tools/entry_words.h"
#include "tools/tool_error.h"

#include <QFile>
#include <QFileInfo>

#include <charconv>
#include <optional>

namespace cdf {
namespace {

constexpr int kEnd = std::char_traits<char>::eof();
std::optional<uint16_t> number(const std::string &text) {
    uint16_t value = 0;
    const char *const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

bool beginsStamp(const std::string &line) {
    return line.empty() || line.front() == '*' || line.find(STRPPDSTAMP) != std::string::npos;
}

} // namespace

CacheReader::CacheReader(const QString &path)
    : m_file(QFile::encodeName(path).constData()),
      m_fileSize(static_cast<uint64_t>(QFileInfo(path).size())) {
    if (!m_file)
        throw ToolError(path, m_file.reason());
    if (m_fileSize == 0)
        throw ToolError(path, QStringLiteral("is empty"));
}

int CacheReader::take() {
    const int c = m_file.rdbuf()->sbumpc();
    m_position += c != kEnd;
    return c;
}

bool CacheReader::nextSection() {
    while (m_inSection && nextEntry())
        ;
    if (!m_fault.isNull())
        return false;
    std::string line;
    int c = take();
    for (; c != kEnd && c != '\n' && line.size() < kGreatestText; c = take())
        line += static_cast<char>(c);
    if (c == kEnd && line.empty())
        return false;
    if (m_foundAny && beginsStamp(line)) {
        m_stamp = line;
        for (; c != kEnd && m_stamp.size() < kGreatestText; c = take())
            m_stamp += static_cast<char>(c);
        return false;
    }
    if (c != '\n' || beginsStamp(line)) {
        m_fault = m_foundAny ? QStringLiteral("breaks off or goes wrong in the name of a section")
                             : QStringLiteral("doesn't begin with the name of a section");
        return false;
    }
    if (line.back() == '\r') {
        m_fault = QStringLiteral("the name of a section ends in CR; the panel wouldn't find it");
        return false;
    }
    m_section = line;
    m_entryCount = 0;
    m_entryIsAhead = false;
    m_inSection = true;
    return true;
}

bool CacheReader::takeField(std::string &field) {
    field.clear();
    for (int c; (c = take()) != '@'; field += static_cast<char>(c)) {
        const char *why = c == kEnd                       ? "breaks off"
                          : c == '\n'                     ? "has a line end in the middle"
                          : field.size() >= kGreatestText ? "has no end"
                                                          : nullptr;
        if (why) {
            m_fault = QStringLiteral("section %1, entry %2 %3")
                          .arg(printable(m_section))
                          .arg(m_entryCount + 1)
                          .arg(QLatin1String(why));
            return false;
        }
    }
    return true;
}

bool CacheReader::nextEntry() {
    if (m_entryIsAhead) {
        m_entryIsAhead = false;
        return true;
    }
    if (!m_inSection || !m_fault.isNull())
        return false;
    const int first = m_file.rdbuf()->sgetc();
    if (first == '\n') {
        take();
        m_inSection = false;
        m_foundAny = true;
        return false;
    }
    if (!takeField(m_entry.key) || !takeField(m_entry.group) || !takeField(m_entry.option) ||
        !takeField(m_entry.choice))
        return false;
    ++m_entryCount;
    m_foundAny = true;
    return true;
}

bool CacheReader::nextRun(CacheRun &run) {
    run = {};
    while (nextEntry()) {
        if (run.size && m_entry.key != run.key) {
            m_entryIsAhead = true;
            break;
        }
        if (!run.size)
            run.key = m_entry.key;
        ++run.size;
        const auto group = number(m_entry.group), option = number(m_entry.option),
                   choice = number(m_entry.choice);
        if (group && option && choice)
            ++run.places[{*group, *option, *choice}];
        else
            ++run.unreadable[m_entry.group + '@' + m_entry.option + '@' + m_entry.choice];
    }
    return run.size > 0;
}

} // namespace cdf
