#pragma once

#include <QList>
#include <QString>

inline const QString kConflictTrue = QStringLiteral("ConflictTrue");
inline const QString kConflictFalse = QStringLiteral("ConflictFalse");

/// One choice of a PPD option as a list shows it. A snapshot: marks that change later don't change
/// the row.
struct ChoiceRow {
    QString option;   ///< the option's keyword
    QString choice;   ///< the choice's keyword
    QString label;    ///< the text to show
    QString conflict; ///< kConflictTrue or kConflictFalse

    /// The strings by their position: option, choice, label, conflict. Any other index is null.
    const QString &operator[](int index) const {
        static const QString none;
        switch (index) {
        case 0:
            return option;
        case 1:
            return choice;
        case 2:
            return label;
        case 3:
            return conflict;
        default:
            return none;
        }
    }
    /// Whether a marked choice forbade this one when the row was made.
    bool conflicted() const { return conflict == kConflictTrue; }
};

/// Rows in the option's choice order: a row's index is the choice's index.
using ChoiceRows = QList<ChoiceRow>;
