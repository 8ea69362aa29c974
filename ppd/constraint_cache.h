#pragma once

#include "platform/cups_ppd.h"
#include "ppd/hash_multimap.h"

#include <QString>

#include <array>
#include <istream>
#include <list>
#include <memory>
#include <ostream>
#include <string>

// A cache file holds constraint tables ready-made for one PPD. The PPD names it with the attribute
// "QZXCDFSetting"; its own constraints then count for nothing.
//
// The file is text with LF line ends: for each section its name on a line and all of its entries on
// the next, and at the end the PPD's "*% Last Edit Date:" line without a line end. An entry is
// key@group@option@choice@, the key "option:choice" and the three indices of x_constraints in
// decimal; nothing stands between two entries. An empty section has an empty line.
//
// Nothing in the file is held against the PPD: a stale file gives a stale table.

// Sections of two panels and two system generations; the reader puts the name together itself.
inline const std::string strPrintFeaturePDETiger = "PrintFeaturePDETiger";
inline const std::string strPrintFeaturePDEPanther = "PrintFeaturePDEPanther";
inline const std::string strImageOptionPDETiger = "ImageOptionPDETiger";
inline const std::string strImageOptionPDEPanther = "ImageOptionPDEPanther";
/// What marks the PPD's line that is the stamp.
inline const std::string STRPPDSTAMP = "*% Last Edit Date:";

/// Fills the table from the section of the cache file that the PPD names.
///
/// The section's name is the base with "Panther" behind it on system version 0x103x and with
/// "Tiger" on every other.
/// @param attribute  name of the PPD attribute whose value is the file's path
///
/// Base and attribute have at most 19 bytes of UTF-8 each.
/// @return 0 when the file could be opened, also without the section; 1 when the attribute or the
///         file is missing, or the path isn't that of a readable regular file. The table then stays
///         as it was.
int32_t GetXPPD(ppd_file_t *ppd, hash_multimap *table, const QString &sectionBase,
                const QString &attribute);

/// A new table of this panel's options: from the cache file, if the PPD names one, whatever it
/// holds; else from the PPD's constraints.
/// @param ppd  not null
std::shared_ptr<hash_multimap> makeConstraintTable(ppd_file_t *ppd);

/// One section to write.
struct x_PDEConstr {
    std::string *name = nullptr;
    std::list<std::string> *keys = nullptr; ///< options whose constraints go into the section
};

/// Reads and writes cache files. Owns nothing of what its pointers point to.
class CQuickXPPD {
public:
    static constexpr size_t kMaxSections = 10;

    CQuickXPPD() = default;
    /// For reading one section into the table.
    CQuickXPPD(hash_multimap *table, std::string *sectionName)
        : table(table), sectionName(sectionName) {}
    /// For writing.
    /// @param sections  at most 10, ended by one without keys
    /// @param ppdPath   the PPD's file, for the stamp; null for no stamp
    CQuickXPPD(ppd_file_t *ppd, hash_multimap *table, const x_PDEConstr *sections,
               std::string *ppdPath);

    /// As xSetxppd(), with watchKeys for the panel's options.
    int32_t SetXppd(ppd_file_t *ppd, hash_multimap *table);
    /// Writes the stamp: the PPD's first piece that contains STRPPDSTAMP, where a piece ends at a
    /// CR. A PPD with LF line ends is one piece. Nothing without a path, a readable file or a
    /// stamp.
    /// @return 0
    int32_t SetFileStamp(std::ostream &out);
    /// Writes nothing: the format has no header.
    /// @return 0
    int32_t SetFileHead(std::ostream &out, ppd_file_t *ppd);
    /// Moves what stands before the first delimiter from the line to the end of the field, and
    /// drops the delimiter. Without a delimiter both stay as they are.
    void getoneline(std::string *line, std::string *field, char delimiter);

    // As the free functions of these names.
    void xConst2Hash_O1O2(ppd_file_t *ppd, hash_multimap *table, int constraint);
    void xConst2Hash_O1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint);
    void xConst2Hash_O1C1O2(ppd_file_t *ppd, hash_multimap *table, int constraint);
    void xConst2Hash_O1C1O2C2(ppd_file_t *ppd, hash_multimap *table, int constraint);

    hash_multimap *table = nullptr;
    ppd_file_t *ppd = nullptr;          ///< writer only
    std::string *sectionName = nullptr; ///< reader only
    std::string *ppdPath = nullptr;     ///< writer only
    std::list<std::string> watchKeys;   ///< filled and emptied by the writer
    std::array<x_PDEConstr, kMaxSections> sections{};
};

/// Adds the entries of the object's section to its table. A field that isn't a number counts as 0,
/// a number is cut to 16 bits, an entry without a key is dropped. A rest of the line without "@"
/// ends the reading; the entry in which it stands isn't added.
std::istream &operator>>(std::istream &in, CQuickXPPD &cache);
/// Writes the object's sections, in the order in which its table is walked, and the stamp. The
/// table is empty afterwards.
std::ostream &operator<<(std::ostream &out, CQuickXPPD &cache);
