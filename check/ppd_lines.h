#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>

namespace check {

/// A PPD's text by lines, to say where something stands. Line ends are LF, CR or both.
class PpdLines {
public:
    explicit PpdLines(const QByteArray &text);

    /// The line, from 1, on which an option opens; 0 where it doesn't.
    int ofOption(const QByteArray &option) const;
    /// The line of a choice, else that of its option.
    int ofChoice(const QByteArray &option, const QByteArray &choice) const;
    /// The line of "*NAME:", such as "DefaultDuplex" or an attribute without an option keyword.
    int ofAttribute(const QByteArray &name) const;

    /// A constraint as it is written.
    struct Constraint {
        int line;
        QByteArray option1, choice1, option2, choice2; ///< choices may be empty
    };
    const QList<Constraint> &constraints() const { return m_constraints; }

private:
    QHash<QByteArray, int> m_first; ///< the first line of "*Keyword option" and "*Keyword:"
    QList<Constraint> m_constraints;
};

} // namespace check
