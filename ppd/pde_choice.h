#pragma once

#include "platform/cups_ppd.h"

#include <QString>

#include <vector>

/// One choice of a PPD option with its titles, made when they are first asked for.
///
/// Borrows the choice from the PPD, which must outlive it. Titles are null without a choice.
class PDEChoiceKRVImageOptions {
public:
    static PDEChoiceKRVImageOptions choiceWithChoice(ppd_choice_t *choice) {
        return PDEChoiceKRVImageOptions(choice);
    }
    explicit PDEChoiceKRVImageOptions(ppd_choice_t *choice) : m_choice(choice) {}

    /// The choice's text, read as ISO Latin-1 whatever the PPD declares.
    const QString &userTitle() const;
    /// The choice's keyword, read as ISO Latin-1.
    const QString &ppdTitle() const;
    ppd_choice_t *choice() const { return m_choice; }
    /// Keyword and text as a PPD writes them, "keyword/text".
    QString description() const;

private:
    ppd_choice_t *m_choice;
    mutable QString m_userTitle;
    mutable QString m_ppdTitle;
};

using PDEChoiceArray = std::vector<PDEChoiceKRVImageOptions>;
