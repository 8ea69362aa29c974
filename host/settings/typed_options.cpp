#include "host/settings/typed_options.h"

#include "host/settings/custom_values.h"
#include "host/settings/ppd_texts.h"
#include "platform/ppd_marks.h"
#include "platform/views/text_view.h"

#include <QFormLayout>

namespace host {

TypedOptions::TypedOptions(QFormLayout *form, QObject *parent) : QObject(parent), m_form(form) {}

void TypedOptions::setOptions(ppd_file_t *ppd, const QStringList &elsewhere,
                              const ConflictReason &conflict) {
    m_ppd = ppd;
    m_conflict = conflict;
    for (const Row &row : std::exchange(m_rows, {})) {
        m_form->removeRow(row.values);
        m_form->removeRow(row.menu);
    }
    eachPpdOption(ppd, [&](const ppd_group_t &, ppd_option_t &option) {
        const QString keyword = QString::fromUtf8(option.keyword);
        if (m_rows.size() < kMostRows && !elsewhere.contains(keyword, Qt::CaseInsensitive) &&
            qstricmp(option.keyword, "PageRegion") != 0 && // follows the size
            !customParameters(ppd, keyword).isEmpty())
            addRow(option);
    });
    refresh();
}

void TypedOptions::addRow(ppd_option_t &option) {
    const QString keyword = QString::fromUtf8(option.keyword);
    const Row row{&option, new ChoiceMenu, new CustomValues};
    row.menu->setObjectName(QStringLiteral("option.") + keyword);
    row.values->setOption(m_ppd, keyword);
    auto *label = new TextView;
    label->setBuddy(row.menu);
    label->setStringValue(tr("%1:").arg(optionText(option)));
    m_form->addRow(label, row.menu);
    m_form->addRow(nullptr, row.values);
    m_rows.append(row);
    connect(row.menu, &QComboBox::activated, this, [this, row] { choose(row); });
    connect(row.values, &CustomValues::changed, this, &TypedOptions::changed);
}

void TypedOptions::choose(const Row &row) {
    const ppd_choice_t *marked = markedChoice(*row.option);
    const QString choice = pickedChoice(m_ppd, *row.option, row.menu->currentData().toString(),
                                        marked ? QString::fromUtf8(marked->choice) : QString());
    const bool done = markChoice(m_ppd, row.option->keyword, choice.toUtf8().constData());
    refresh();
    if (done)
        emit changed(QString::fromUtf8(row.option->keyword));
}

void TypedOptions::refresh() {
    for (const Row &row : std::as_const(m_rows)) {
        const ppd_choice_t *marked = markedChoice(*row.option);
        row.menu->setReason(
            {}, row.menu->showChoices(choicesOf(*row.option),
                                      marked ? QString::fromUtf8(marked->choice) : QString(),
                                      QString::fromUtf8(row.option->keyword), m_conflict));
        row.values->refresh();
    }
}

QString TypedOptions::problem() const {
    for (const Row &row : m_rows)
        if (const QString fault = row.values->problem(); !fault.isNull())
            return fault;
    return {};
}

void TypedOptions::showProblem() {
    for (const Row &row : std::as_const(m_rows))
        if (!row.values->problem().isNull())
            return row.values->showProblem();
}

} // namespace host
