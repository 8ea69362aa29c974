#include "host/settings/choice_menu.h"

#include "host/settings/custom_parameters.h"
#include "host/settings/ppd_texts.h"
#include "host/settings/tool_tip.h"

#include <QSignalBlocker>
#include <QStandardItemModel>

namespace host {

ChoiceMenu::ChoiceMenu(QWidget *parent) : MenuBox(parent) {
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(16); // foreign texts may be long; the open list shows them whole
}

QString ChoiceMenu::showChoices(const QList<SettingChoice> &choices, const QString &now,
                                const QString &option, const ConflictReason &conflict) {
    const QSignalBlocker blocker(this);
    if (count() != choices.size())
        clear();
    auto *items = qobject_cast<QStandardItemModel *>(model());
    QString told;
    setCurrentIndex(-1);
    for (int i = 0; i < choices.size(); ++i) {
        const auto &[keyword, text] = choices[i];
        if (i >= count())
            addItem(text, keyword);
        setItemText(i, text);
        setItemData(i, keyword);
        const QString why = conflict ? conflict(option, keyword) : QString();
        setItemData(i, plainToolTip(why.isNull() ? text : why), Qt::ToolTipRole);
        setItemData(i, why, Qt::AccessibleDescriptionRole);
        const bool isNow = keyword.compare(now, Qt::CaseInsensitive) == 0;
        items->item(i)->setEnabled(why.isNull() || isNow);
        if (isNow) {
            setCurrentIndex(i);
            told = why;
        }
    }
    return told;
}

void ChoiceMenu::setReason(const QString &reason, const QString &words) {
    setEnabled(reason.isNull());
    setToolTip(plainToolTip(reason.isNull() ? words : reason));
    setAccessibleDescription(reason.isNull() ? words : reason);
}

QString pickedChoice(ppd_file_t *ppd, const ppd_option_t &option, const QString &picked,
                     const QString &now) {
    return isCustom(picked) && now != picked
               ? customChoice(option, customParameters(ppd, QString::fromUtf8(option.keyword)))
               : picked;
}

} // namespace host
