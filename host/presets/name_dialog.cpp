#include "host/presets/name_dialog.h"

#include "host/presets/preset.h"
#include "host/words.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace host {
namespace {

constexpr int kNameCharacters = 40; // as wide as most names, and the words below them

} // namespace

std::optional<QString> askPresetName(QWidget *parent, const QString &question,
                                     const QString &name) {
    const QPointer<QDialog> dialog = new QDialog(parent->window());
    dialog->setObjectName(QStringLiteral("presetNameDialog"));
    dialog->setWindowTitle(question);
    auto *edit = new QLineEdit(name);
    edit->setObjectName(QStringLiteral("presetName"));
    edit->setMinimumWidth(kNameCharacters * edit->fontMetrics().averageCharWidth());
    auto *problem = new QLabel;
    problem->setObjectName(QStringLiteral("presetNameProblem"));
    problem->setTextFormat(Qt::PlainText);
    problem->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    auto *layout = new QFormLayout(dialog);
    layout->addRow(HostWords::tr("&Name:"), edit);
    layout->addRow(problem);
    layout->addRow(buttons);

    const auto judge = [=] {
        const QString fault = presetNameProblem(edit->text().trimmed());
        buttons->button(QDialogButtonBox::Save)->setEnabled(fault.isNull());
        const bool told = !fault.isNull() && !edit->text().isEmpty();
        const QString words = told ? HostWords::tr("Not possible: %1.").arg(fault) : QString();
        edit->setAccessibleDescription(words);
        problem->setText(told ? words : QStringLiteral(" ")); // so that the window stays put
        dialog->resize(dialog->size().expandedTo(
            {layout->minimumSize().width(), layout->totalHeightForWidth(dialog->width())}));
    };
    QObject::connect(edit, &QLineEdit::textChanged, dialog, judge);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    judge();
    edit->selectAll();
    const bool accepted = dialog->exec() == QDialog::Accepted;
    std::optional<QString> answer;
    if (accepted && dialog) // which goes with its parent if that is destroyed meanwhile
        answer = edit->text().trimmed();
    delete dialog;
    return answer;
}

} // namespace host
