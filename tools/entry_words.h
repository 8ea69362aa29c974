#pragma once

#include "platform/cups_ppd.h"
#include "ppd/hash_multimap.h"

#include <QString>

#include <string_view>

namespace cdf {

/// A file's bytes on a terminal, taken as UTF-8.
QString printable(std::string_view text);

/// "1 entry", "2 entries".
QString entriesText(uint64_t count);

/// Says what an entry of a constraint table means.
class EntryWords {
public:
    /// @param ppd  gives the labels, borrowed; null to tell keywords and indices alone
    explicit EntryWords(ppd_file_t *ppd);

    /// "Color Mode "Mono" forbids Screen "Fine" [QZColorMode:BW, QZScreen:F1]", with a remark for
    /// indices outside the PPD and for a key that the PPD doesn't have.
    QString operator()(std::string_view key, x_constraints place) const;
    /// The same for an entry whose indices aren't numbers.
    QString operator()(std::string_view key, std::string_view unreadable) const;

private:
    QString sentence(const QString &subject, const QString &subjectKey, std::string_view key) const;
    QString label(const ppd_option_t &option, const ppd_choice_t &choice) const;

    ppd_file_t *m_ppd;
    unsigned int m_encoding = 0;
};

} // namespace cdf
