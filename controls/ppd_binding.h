#pragma once

#include "controls/control_panel.h"
#include "ppd/choice_row.h"
#include "ppd/pde_choice.h"

#include <QStringList>
#include <QVariantMap>

/// What a control holds of its PPD option: the keyword, the title, and one row for each choice.
/// Every family that is bound to an option has one.
///
/// Rows, choices and positions are the option's order in the PPD. A missing PPD, keyword or panel
/// is a miss in every question.
struct PpdBinding {
    const char *kPPDMainKey = nullptr; ///< outlives the control
    ChoiceRows ctrlPPDInfoArrayRef{};
    bool hasRows = false;               ///< whether rows were made before, and be it none
    CtrlTag ctrlIDTitleExPtr = nullptr; ///< the static text that shows the title; null for none
    QString titleTextRef{};             ///< null without the option

    int32_t rowCount() const { return static_cast<int32_t>(ctrlPPDInfoArrayRef.size()); }
    /// Rows := the option's choices and their conflicts now; empty without PPD, keyword, panel or
    /// constraint table.
    /// @return whether all four are there, also for an option without choices
    bool rebuild(ppd_file_t *ppd, const ControlPanel *panel);
    /// titleTextRef := the option's title; null without the option.
    void takeTitle(ppd_file_t *ppd);
    /// The static text that shows the title; null without one.
    BaseControlKRVImageOptions *titleControl(ControlPanel *panel) const;
    /// Title control := titleTextRef, with ":" behind it.
    void showTitle(ControlPanel *panel) const;
    /// Title control := no text.
    void clearTitle(ControlPanel *panel) const;
    /// @return the keyword of the option's default choice; null without the option
    QString defaultChoice(ppd_file_t *ppd) const;
    /// @return the first row with that keyword, or -1
    int32_t find(const QString &choice) const;
    /// @param option  the option that the keyword names, or null
    /// @return index of the marked choice in the panel's PPD, without a mark that of the default;
    ///         -1 without either and above the row count. The row count itself passes.
    int32_t presetIndex(ppd_option_t *option, const ControlPanel *panel) const;
    /// @return the keyword of the choice that is marked in the panel's PPD; null for none
    QString markedChoice(const ControlPanel *panel) const;
    /// Adds a row of the summary under the title, where title, text and both arguments exist.
    /// @param titleBytes  the title's greatest length in UTF-8; -1 for no limit
    void addSummaryRow(const QString &text, QVariantMap *summary, QStringList *orderArray,
                       int titleBytes = -1) const;

    /// The label of a row; null outside.
    QString label(int64_t row) const;

    /// @return the keyword of an option's choice, as the host is told it; null outside
    static QString choiceAt(const ppd_option_t *option, int32_t index);
    /// The same of the choices' titles, which are read as ISO Latin-1.
    static QString choiceAt(const PDEChoiceArray *choices, int64_t index);
    /// @return the panel's PPD, or null
    static ppd_file_t *currentPpd(const ControlPanel *panel) {
        return panel ? panel->GetCurrentPPD() : nullptr;
    }
};
