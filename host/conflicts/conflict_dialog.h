#pragma once

#include "host/conflicts/resolution.h"

#include <optional>

class QWidget;

namespace host {

/// A conflict in words: "Paper Type: Transparency, Duplex: On".
QString textOf(const Conflict &conflict);

enum class Purpose { Print, Look };

/// What the person has decided.
struct Decision {
    bool goesOn = false;
    QList<Change> changes; ///< to be made first
};

/// Shows the conflicts between the marks, a pair of settings on a line each, and what would resolve
/// them. Nothing is changed here.
/// @param purpose     Print offers to print all the same
/// @param chosenLast  keyword of the option that the person chose last, or null
/// @return what to do; to go on without changes where there are no conflicts, without a dialog
Decision askAboutConflicts(QWidget *parent, const ConflictIndex &index, Purpose purpose,
                           const QString &chosenLast = {});

} // namespace host
