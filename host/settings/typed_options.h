#pragma once

#include "host/settings/choice_menu.h"

#include <QObject>
#include <QStringList>

class QFormLayout;
class TextView;

namespace host {

class CustomValues;

/// A row for each option of a PPD that takes values which people type, such as a PIN or an account,
/// where nothing else shows it.
///
/// Call views::assignMnemonics() for the form's widget after setOptions().
class TypedOptions : public QObject {
    Q_OBJECT

public:
    /// @param form  where the rows stand behind those that it has; outlives this object
    explicit TypedOptions(QFormLayout *form, QObject *parent = nullptr);

    /// @param ppd       borrowed until the next call; may be null
    /// @param elsewhere keywords of options that others show
    /// @param conflict  may be empty
    void setOptions(ppd_file_t *ppd, const QStringList &elsewhere = {},
                    const ConflictReason &conflict = {});
    /// Shows marks and conflicts as they stand now.
    void refresh();
    /// Why what is typed can't be printed, a sentence; null where it can.
    QString problem() const;
    /// Gives the keyboard to the field that has the problem, if there is one.
    void showProblem();

    /// Of so many options rows are shown.
    static constexpr int kMostRows = 50;

signals:
    /// An option was changed by the person, after it has been marked; also when a problem comes or
    /// goes.
    void changed(const QString &option);

private:
    struct Row {
        ppd_option_t *option;
        ChoiceMenu *menu;
        CustomValues *values;
    };

    void addRow(ppd_option_t &option);
    void choose(const Row &row);

    ppd_file_t *m_ppd = nullptr;
    ConflictReason m_conflict;
    QList<Row> m_rows;
    QFormLayout *m_form;
};

} // namespace host
