#pragma once

#include <QString>

namespace host {

/// What a person typed as pages.
struct PageRanges {
    QString value; ///< as CUPS takes it, ascending and without overlaps, "1-3,5,9-"; null for none
    QString problem; ///< why it can't be used, a sentence; null where it can
    int at = 0;      ///< where the problem is: the place of its first character, from 0
};

/// Reads "1-3, 5, 9-" and "-4": pages and ranges of pages, parted by commas or semicolons, with
/// digits of any script. They print in the document's order, so that theirs doesn't matter.
/// @param pageCount  pages of the document; 0 where that isn't known
/// @param areSides   what is counted are printed sides with several pages each
PageRanges readPageRanges(const QString &text, int pageCount = 0, bool areSides = false);

} // namespace host
