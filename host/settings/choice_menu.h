#pragma once

#include "host/settings/job_settings.h"
#include "platform/views/menu_box.h"

#include <functional>

namespace host {

/// Why a choice conflicts with what is marked, in words for a person; null where it doesn't.
using ConflictReason = std::function<QString(const QString &option, const QString &choice)>;

/// A menu of the choices that one setting has. What can't be chosen is greyed and says why, in its
/// tool tip and its accessible description.
class ChoiceMenu : public MenuBox {
    Q_OBJECT

public:
    explicit ChoiceMenu(QWidget *parent = nullptr);

    /// Lists choices, and shows the one that stands without a signal.
    /// @param now       a keyword; nothing is shown for one that isn't among them
    /// @param option    keyword that the reason is asked with
    /// @param conflict  may be empty
    /// @return why the choice that stands conflicts; null where it doesn't
    QString showChoices(const QList<SettingChoice> &choices, const QString &now,
                        const QString &option, const ConflictReason &conflict);
    /// Greys the whole menu if there is a reason, else shows what is to be said of it.
    void setReason(const QString &reason, const QString &words = {});
};

/// What makes a choice that a person picks in a menu, as markChoice() takes it: a value of one's
/// own begins with those that stand.
/// @param now  the choice that is marked
QString pickedChoice(ppd_file_t *ppd, const ppd_option_t &option, const QString &picked,
                     const QString &now);

} // namespace host
