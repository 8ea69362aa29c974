#include "ppd/constraint_cache.h"

#include "ppd/constraint_table.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "ppd/regular_file.h"
#include "services/system_version.h"

#include <cstdlib>
#include <locale>
#include <string_view>

namespace {

constexpr char kDelimiter = '@';
constexpr size_t kLineReserve = 200;
constexpr int32_t kVersionMask = 0xfff0;
constexpr int32_t kPantherVersion = 0x1030;
constexpr qsizetype kMaxNameBytes = 19;

/// The next field of an entry line, or nothing when a rest without a delimiter is left. At the
/// line's end the field is empty.
bool takeField(const std::string &line, size_t &position, std::string_view &field) {
    field = {};
    if (position == line.size())
        return true;
    const size_t end = line.find(kDelimiter, position);
    if (end == std::string::npos)
        return false;
    field = std::string_view(line).substr(position, end - position);
    position = end + 1;
    return true;
}

/// The field is followed by a delimiter or is empty, so that the number ends within the line.
uint16_t indexOf(std::string_view field) {
    constexpr size_t kPlainDigits = 5;
    uint32_t number = 0;
    size_t digits = 0;
    while (digits < field.size() && field[digits] >= '0' && field[digits] <= '9')
        number = number * 10 + static_cast<uint32_t>(field[digits++] - '0');
    if (digits == field.size() && digits <= kPlainDigits)
        return static_cast<uint16_t>(number);
    return field.empty() ? 0 : static_cast<uint16_t>(std::strtol(field.data(), nullptr, 10));
}

/// The entries of one key mostly stand together, so that the key isn't looked up for each.
void readEntries(const std::string &line, hash_multimap &table) {
    std::string_view before;
    hash_multimap::KeyList keys{};
    for (size_t position = 0; position < line.size();) {
        std::string_view key, group, option, choice;
        if (!takeField(line, position, key) || !takeField(line, position, group) ||
            !takeField(line, position, option) || !takeField(line, position, choice))
            return;
        if (key.empty())
            continue;
        if (key != before)
            keys = table.keyList(before = key);
        table.insert(keys, {indexOf(group), indexOf(option), indexOf(choice)});
    }
}

} // namespace

std::shared_ptr<hash_multimap> makeConstraintTable(ppd_file_t *ppd) {
    constexpr size_t kRequest = 100;
    const QString attribute = QString::fromUtf8(kQZCDFFileKey);
    auto table = std::make_shared<hash_multimap>(kRequest);
    if (CDFKeyExist(ppd, attribute))
        GetXPPD(ppd, table.get(), QStringLiteral("ImageOptionPDE"), attribute);
    else
        xSetxppd(ppd, table.get());
    return table;
}

int32_t GetXPPD(ppd_file_t *ppd, hash_multimap *table, const QString &sectionBase,
                const QString &attribute) {
    const QByteArray base = sectionBase.toUtf8();
    const QByteArray name = attribute.toUtf8();
    if (!ppd || !table || base.size() > kMaxNameBytes || name.size() > kMaxNameBytes)
        return 1;
    const ppd_attr_t *path = ppdFindAttr_ALT(ppd, name.constData(), nullptr);
    std::string section =
        base.toStdString() +
        ((systemVersion() & kVersionMask) == kPantherVersion ? "Panther" : "Tiger");
    CQuickXPPD cache(table, &section);
    RegularFileStream file(path ? path->value : nullptr);
    if (!file)
        return 1;
    file >> cache;
    return 0;
}

CQuickXPPD::CQuickXPPD(ppd_file_t *ppd, hash_multimap *table, const x_PDEConstr *sections,
                       std::string *ppdPath)
    : table(table), ppd(ppd), ppdPath(ppdPath) {
    for (size_t i = 0; sections && i < kMaxSections && sections[i].keys; ++i)
        this->sections[i] = sections[i];
}

int32_t CQuickXPPD::SetXppd(ppd_file_t *ppd, hash_multimap *table) {
    addConstraintsOf(ppd, table, watchKeys);
    return 0;
}

int32_t CQuickXPPD::SetFileStamp(std::ostream &out) {
    if (!ppdPath)
        return 0;
    RegularFileStream file(ppdPath->c_str());
    std::string piece;
    piece.reserve(kLineReserve);
    while (std::getline(file, piece, '\r'))
        if (piece.find(STRPPDSTAMP) != std::string::npos) {
            out << piece;
            break;
        }
    return 0;
}

int32_t CQuickXPPD::SetFileHead(std::ostream &, ppd_file_t *) {
    return 0;
}

void CQuickXPPD::getoneline(std::string *line, std::string *field, char delimiter) {
    if (!line || !field)
        return;
    const size_t end = line->find(delimiter);
    if (end == std::string::npos)
        return;
    field->append(*line, 0, end);
    line->erase(0, end + 1);
}

void CQuickXPPD::xConst2Hash_O1O2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    ::xConst2Hash_O1O2(ppd, table, constraint);
}

void CQuickXPPD::xConst2Hash_O1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    ::xConst2Hash_O1O2C2(ppd, table, constraint);
}

void CQuickXPPD::xConst2Hash_O1C1O2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    ::xConst2Hash_O1C1O2(ppd, table, constraint);
}

void CQuickXPPD::xConst2Hash_O1C1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint) {
    ::xConst2Hash_O1C1O2C2(ppd, table, constraint);
}

std::istream &operator>>(std::istream &in, CQuickXPPD &cache) {
    if (!cache.table || !cache.sectionName)
        return in;
    std::string line;
    line.reserve(kLineReserve);
    while (std::getline(in, line))
        if (line == *cache.sectionName) {
            // Read by position: taking fields off the front of so long a line is quadratic.
            if (std::getline(in, line))
                readEntries(line, *cache.table);
            break;
        }
    return in;
}

std::ostream &operator<<(std::ostream &out, CQuickXPPD &cache) {
    const std::locale before = out.imbue(std::locale::classic()); // no digits in groups
    for (const x_PDEConstr &section : cache.sections) {
        if (!section.keys)
            break;
        cache.watchKeys.insert(cache.watchKeys.end(), section.keys->begin(), section.keys->end());
        if (section.name)
            out << *section.name;
        out << '\n' << std::flush;
        if (cache.table) {
            cache.SetXppd(cache.ppd, cache.table);
            cache.table->forEach([&](std::string_view key, x_constraints value) {
                out << key << kDelimiter << value.groupIndex << kDelimiter << value.optionIndex
                    << kDelimiter << value.choiceIndex << kDelimiter;
            });
            cache.table->clear();
        }
        cache.watchKeys.clear();
        out << '\n' << std::flush;
    }
    cache.SetFileStamp(out);
    out.imbue(before);
    return out;
}
