#include "host/settings/secrets.h"

#include "host/settings/ppd_texts.h"
#include "host/settings/text_fields.h"
#include "host/words.h"
#include "platform/views/text_view.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

#include <cstring>

namespace host {
namespace {

bool isCustomMarked(const ppd_option_t &option) {
    for (int i = 0; i < option.num_choices; ++i)
        if (option.choices[i].marked && isCustom(option.choices[i]))
            return true;
    return false;
}

/// Marks one option's secrets, its other values as they stand.
void markSecrets(ppd_file_t *ppd, const QList<Secret> &secrets) {
    for (const Secret &secret : secrets) {
        QList<CustomParameter> parameters = customParameters(ppd, secret.option);
        for (CustomParameter &parameter : parameters)
            if (parameter.name == secret.parameter.name)
                parameter.value = secret.parameter.value;
        markCustom(ppd, *findOption(ppd, secret.option), parameters);
    }
}

} // namespace

QList<Secret> secretsOf(ppd_file_t *ppd) {
    QList<Secret> secrets;
    eachPpdOption(ppd, [&](const ppd_group_t &, const ppd_option_t &option) {
        if (!isCustomMarked(option))
            return;
        const QString keyword = QString::fromUtf8(option.keyword);
        for (const CustomParameter &parameter : customParameters(ppd, keyword))
            if (parameter.isSecret())
                secrets.append(
                    {keyword, optionText(option), parameter,
                     !parameter.value.isEmpty() && problemOf(parameter, parameter.value).isNull()});
    });
    return secrets;
}

bool askSecrets(QWidget *parent, ppd_file_t *ppd) {
    QList<Secret> missing = secretsOf(ppd);
    missing.removeIf([](const Secret &secret) { return secret.isUsable; });
    if (missing.isEmpty())
        return true;

    const QPointer<QDialog> dialog = new QDialog(parent ? parent->window() : nullptr);
    dialog->setObjectName(QStringLiteral("secretsDialog"));
    dialog->setWindowTitle(HostWords::tr("Password for This Job"));
    auto *layout = new QFormLayout(dialog);
    dialog->setMinimumWidth(dialog->fontMetrics().averageCharWidth() * 48);
    auto *words = new QLabel(HostWords::tr("It isn't kept, and goes with this job only."));
    words->setWordWrap(true);
    layout->addRow(words);
    QList<QLineEdit *> edits;
    for (const Secret &secret : std::as_const(missing)) {
        auto *edit = new SecretField(secret.parameter);
        edit->setObjectName(secret.option + u'.' + QString::fromUtf8(secret.parameter.name));
        auto *label = new TextView;
        label->setBuddy(edit);
        label->setStringValue(
            secret.optionText == secret.parameter.text
                ? HostWords::tr("%1:").arg(secret.optionText)
                : HostWords::tr("%1, %2:").arg(secret.optionText, secret.parameter.text));
        layout->addRow(label, edit);
        edits.append(edit);
    }
    auto *problem = new QLabel(QStringLiteral(" "));
    problem->setObjectName(QStringLiteral("secretsProblem"));
    problem->setTextFormat(Qt::PlainText);
    problem->setWordWrap(true);
    layout->addRow(problem);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(HostWords::tr("&Print"));
    layout->addRow(buttons);

    const auto judge = [&] {
        bool all = true;
        QString told;
        for (qsizetype i = 0; i < edits.size(); ++i) {
            const QString typed = edits[i]->text();
            const QString fault = problemOf(missing[i].parameter, typed);
            all = all && !typed.isEmpty() && fault.isNull();
            edits[i]->setAccessibleDescription(typed.isEmpty() ? QString() : fault);
            if (told.isEmpty() && !typed.isEmpty())
                told = fault;
        }
        problem->setText(told.isEmpty() ? QStringLiteral(" ") : told); // the window stays put
        const int height = layout->totalHeightForWidth(dialog->width());
        if (dialog->height() < height) // unless the words need more
            dialog->resize(dialog->width(), height);
        buttons->button(QDialogButtonBox::Ok)->setEnabled(all);
    };
    for (QLineEdit *edit : std::as_const(edits))
        QObject::connect(edit, &QLineEdit::textChanged, dialog, judge);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    dialog->resize(dialog->sizeHint());
    judge();
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    if (accepted) {
        for (qsizetype i = 0; i < edits.size(); ++i)
            missing[i].parameter.value = edits[i]->text();
        markSecrets(ppd, missing);
    }
    delete dialog;
    return accepted;
}

void forgetSecrets(ppd_file_t *ppd) {
    eachPpdOption(ppd, [&](const ppd_group_t &, const ppd_option_t &option) {
        ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
        for (ppd_cparam_t *p = custom ? ppdFirstCustomParam(custom) : nullptr; p;
             p = ppdNextCustomParam(custom))
            if (isSecret(*p) && p->current.custom_string)
                explicit_bzero(p->current.custom_string, std::strlen(p->current.custom_string));
    });
}

} // namespace host
