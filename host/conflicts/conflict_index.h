#pragma once

#include "platform/cups_ppd.h"

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

namespace host {

/// An option with one of its choices.
struct Party {
    const ppd_option_t *option = nullptr;
    const ppd_choice_t *choice = nullptr;

    /// "Paper Type: Transparency", in the PPD's words.
    QString text() const;
    bool operator==(const Party &) const = default;
};

/// Choices that the PPD forbids together: two or more, each of another option.
using Conflict = QList<Party>;

/// All constraints of a PPD as clauses, ready to be asked.
///
/// As libcups reads them: "cupsUIConstraints" if the PPD has any, else "UIConstraints" and
/// "NonUIConstraints". Names count without case, in ASCII. A term without a choice means any choice
/// but None, Off and False. PageRegion is PageSize. A custom value is the choice Custom. A clause
/// that names what the PPD doesn't have, or fewer than two options, is dropped.
///
/// Nothing is kept of the marks: each question looks at them anew. A question about a choice visits
/// the clauses that speak of it, standing() visits all. Used on the interface's thread.
class ConflictIndex {
public:
    /// @param ppd  borrowed, outlives the index; may be null
    explicit ConflictIndex(ppd_file_t *ppd);

    ppd_file_t *ppd() const { return m_ppd; }
    bool isEmpty() const { return m_clauses.empty(); }
    /// How many clauses there are.
    qsizetype size() const { return qsizetype(m_clauses.size()); }

    /// The choice that counts for an option: the marked one. For the page size without a mark the
    /// size that is marked as the region. Null for none, and for an option of another PPD.
    const ppd_choice_t *current(const ppd_option_t &option) const;
    /// The conflicts that a choice would have with what is marked, whether it is marked or not, in
    /// the PPD's order, each once.
    QList<Conflict> conflictsOf(const QString &option, const QString &choice) const;
    /// The same as words for a person: "Not available with Paper Type: Transparency". Of many
    /// conflicts the first few are told. Null without one, or for what the PPD doesn't have.
    QString reasonAgainst(const QString &option, const QString &choice) const;
    /// The conflicts of the marks with each other, in the PPD's order, each once.
    QList<Conflict> standing() const;

private:
    struct Option {
        const ppd_option_t *option = nullptr;
        QHash<QByteArray, const ppd_choice_t *> choices; ///< by the keyword in lower case
    };
    struct Term {
        const ppd_option_t *option;
        const ppd_choice_t *choice; ///< null for any that is on
    };
    using Clause = std::vector<Term>;

    void readAttributes();
    void readPairs();
    void add(const Clause &clause);
    bool takeTerm(const QByteArray &option, const QByteArray &choice, Clause &clause) const;
    const Option *find(const QByteArray &keyword) const;
    /// The choice by which a term holds; null where it doesn't.
    /// @param instead  a choice to be taken for its option's current one; may be null
    const ppd_choice_t *fulfilled(const Term &term, const Party &instead) const;
    class Found;

    ppd_file_t *m_ppd;
    QHash<QByteArray, Option> m_options; ///< by the keyword in lower case
    const ppd_option_t *m_pageSize = nullptr;
    const ppd_option_t *m_pageRegion = nullptr; ///< only beside a page size
    std::vector<Clause> m_clauses;
    QHash<const void *, std::vector<int>> m_byName; ///< a choice's, or an option's without one
};

} // namespace host
