#pragma once

#include "host/conflicts/conflict_index.h"

namespace host {

/// A change that takes part in resolving conflicts.
struct Change {
    const ppd_option_t *option = nullptr;
    const ppd_choice_t *from = nullptr; ///< null where nothing is marked
    const ppd_choice_t *to = nullptr;

    /// "Paper Source: Tray 2 → Tray 1".
    QString text() const;
};

/// Changes that leave no conflict between the marks: what libcups' resolver proposes where that
/// holds, else a search of our own for a free choice of one after the other, else the defaults of
/// all that take part. Marks stand afterwards as before.
/// @param chosenLast  keyword of the option that the person chose last, or null; it is changed only
///                    where nothing else helps
/// @return an option each; nothing where none was found, or without a conflict
QList<Change> proposal(const ConflictIndex &index, const QString &chosenLast = {});

} // namespace host
