#include "controls/ppd_binding.h"

#include "controls/base_control.h"
#include "controls/value_text.h"
#include "platform/utf8.h"
#include "ppd/conflicts.h"
#include "ppd/ppd_query.h"

bool PpdBinding::rebuild(ppd_file_t *ppd, const ControlPanel *panel) {
    ctrlPPDInfoArrayRef.clear();
    hasRows = true;
    const hash_multimap *table = panel ? panel->Getxppd() : nullptr;
    if (!ppd || !kPPDMainKey || !table)
        return false;
    InitializeValueFromPPD(ppd, table, &ctrlPPDInfoArrayRef, kPPDMainKey);
    return true;
}

void PpdBinding::takeTitle(ppd_file_t *ppd) {
    titleTextRef = QString();
    if (ppd && kPPDMainKey)
        GetUITitleFromPPD(ppd, kPPDMainKey, titleTextRef);
}

BaseControlKRVImageOptions *PpdBinding::titleControl(ControlPanel *panel) const {
    return ctrlIDTitleExPtr && panel ? panel->GetPanelControl(ctrlIDTitleExPtr) : nullptr;
}

void PpdBinding::showTitle(ControlPanel *panel) const {
    if (BaseControlKRVImageOptions *control = titleControl(panel)) {
        const QByteArray text = titleTextRef.toUtf8() + ':';
        control->SetExternalValueToUI(text.constData(), static_cast<uint32_t>(text.size()));
    }
}

void PpdBinding::clearTitle(ControlPanel *panel) const {
    if (BaseControlKRVImageOptions *control = titleControl(panel))
        control->SetExternalValueToUI("", 0);
}

QString PpdBinding::defaultChoice(ppd_file_t *ppd) const {
    QString choice;
    if (ppd && kPPDMainKey)
        GetUIDefaultFromPPD(ppd, kPPDMainKey, choice);
    return choice;
}

int32_t PpdBinding::find(const QString &choice) const {
    if (!choice.isNull())
        for (int32_t i = 0; i < rowCount(); ++i)
            if (ctrlPPDInfoArrayRef[i].choice == choice)
                return i;
    return -1;
}

int32_t PpdBinding::presetIndex(ppd_option_t *option, const ControlPanel *panel) const {
    ppd_file_t *ppd = currentPpd(panel);
    if (!option || !ppd || !kPPDMainKey)
        return -1;
    const int32_t index = GetIndexOfMarkedOptionWithKey(option, ppd, kPPDMainKey);
    return index <= rowCount() ? index : -1;
}

QString PpdBinding::markedChoice(const ControlPanel *panel) const {
    ppd_file_t *ppd = currentPpd(panel);
    const ppd_choice_t *choice =
        ppd && kPPDMainKey ? ppdFindMarkedChoice(ppd, kPPDMainKey) : nullptr;
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

void PpdBinding::addSummaryRow(const QString &text, QVariantMap *summary, QStringList *orderArray,
                               int titleBytes) const {
    ::addSummaryRow(titleBytes < 0 ? titleTextRef : cutToBytes(titleTextRef, titleBytes), text,
                    summary, orderArray);
}

QString PpdBinding::label(int64_t row) const {
    return row >= 0 && row < rowCount() ? ctrlPPDInfoArrayRef[row].label : QString();
}

QString PpdBinding::choiceAt(const ppd_option_t *option, int32_t index) {
    return option && index >= 0 && index < option->num_choices
               ? QString::fromUtf8(option->choices[index].choice)
               : QString();
}

QString PpdBinding::choiceAt(const PDEChoiceArray *choices, int64_t index) {
    return choices && index >= 0 && static_cast<uint64_t>(index) < choices->size()
               ? (*choices)[static_cast<size_t>(index)].ppdTitle()
               : QString();
}
