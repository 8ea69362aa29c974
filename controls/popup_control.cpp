// The list with a static menu.

#include "controls/popup_family.h"
#include "platform/bundle.h"
#include "platform/views/popup_view.h"
#include "ppd/conflicts.h"
#include "services/bundle_identity.h"

#include <algorithm>

void PopupControlKRVImageOptions::CreateControl(PopupView *view, PopupIniData *iniData,
                                                const CtrlConstrainInfo *constrain,
                                                const CtrlAccessInfo *access, const QString &user) {
    BaseControlKRVImageOptions::CreateControl(view);
    setRecords(constrain, access, user);
    listctrlIniDataPtr = iniData;
}

PopupView *PopupControlKRVImageOptions::popup() const {
    return qobject_cast<PopupView *>(ControlPtr.data());
}

bool PopupControlKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    if (!InitializeMenu(bundle, ppd))
        return false;
    allocateBlocks(CtrlDataBlk::kWordSize);
    return true;
}

bool PopupControlKRVImageOptions::ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    return InitializeMenu(bundle, ppd);
}

bool PopupControlKRVImageOptions::InitializeMenu(const Bundle *bundle, ppd_file_t *) {
    if (!listctrlIniDataPtr)
        return true;
    PopupView *menu = popup();
    if (!menu)
        return false;
    menu->removeAllItems();
    if (!listctrlIniDataPtr->menuKeys)
        return true;
    for (const char *const *key = listctrlIniDataPtr->menuKeys; *key; ++key) {
        const QString title = localized(bundle, *key);
        const QString object = QString::fromUtf8(*key);
        menu->addItemWithTitle(title == kNoTranslation ? object : title);
        menu->setItemRepresentedObject(menu->numberOfItems() - 1, object);
    }
    return true;
}

std::optional<int32_t> PopupControlKRVImageOptions::shownValue() const {
    const PopupView *menu = popup();
    return menu ? std::optional(menu->indexOfSelectedItem() + 1) : std::nullopt;
}

void PopupControlKRVImageOptions::showValue(int32_t value) {
    if (PopupView *menu = popup())
        menu->selectItemAtIndex(value - 1);
}

bool PopupControlKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    if (!value || !popup())
        return false;
    showValue(std::max(externalInteger(value), 1));
    return true;
}

const void *PopupControlKRVImageOptions::GetDefaultDataBlk() {
    return listctrlIniDataPtr ? &listctrlIniDataPtr->defaultValue : nullptr;
}

const void *PopupControlKRVImageOptions::GetIniDataBlk() {
    return listctrlIniDataPtr ? &listctrlIniDataPtr->iniValue : nullptr;
}

int32_t PopupControlKRVImageOptions::GetCurrentControlArrayNumber() {
    return popup() ? popup()->indexOfSelectedItem() : -1;
}

int32_t PopupControlKRVImageOptions::walkValue() {
    return std::max(GetCurrentControlArrayNumber() + 1, 1);
}

int32_t PopupControlKRVImageOptions::DoControlUpdateConstrain() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->updateTable || !ctrlUIDataBlkPtr)
        return 0;
    if (walkValue() == ctrlUIDataBlkPtr->word())
        return 0;
    return DoBaseControlUpdateConstrain();
}

int32_t PopupControlKRVImageOptions::DoBaseControlUpdateConstrain() {
    return BaseControlKRVImageOptions::DoControlUpdateConstrain();
}

// The new row is applied before the old one is released, so that a control in both never flickers.
// The mark for "no old value" is below 0 here: 0 would stand for a row in front of the table.
int32_t PopupControlKRVImageOptions::DoControlHideConstrain() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->hideTable || !ctrlUIDataBlkPtr)
        return 0;
    const int32_t value = walkValue();
    const int32_t old = ctrlUIDataBlkPtr->word();
    if (value == old)
        return 0;
    HideControlConstrains(ctrlConstrainControlArray->hideTable->row(value - 1));
    if (old >= 0)
        ShowControlConstrains(ctrlConstrainControlArray->hideTable->row(old - 1));
    return 0;
}

// Here the old row is released first, and the new value stored between the two, so that the UI
// block names the row that is in force while the new row's controls react.
int32_t PopupControlKRVImageOptions::DoControlConstrain() {
    if (!ctrlConstrainControlArray || !ctrlConstrainControlArray->disableTable || !ctrlUIDataBlkPtr)
        return 0;
    const int32_t value = walkValue();
    const int32_t old = ctrlUIDataBlkPtr->word();
    if (value == old)
        return 0;
    if (old > 0)
        EnableControlConstrains(ctrlConstrainControlArray->disableTable->row(old - 1));
    ctrlUIDataBlkPtr->setWord(value);
    DisableControlConstrains(ctrlConstrainControlArray->disableTable->row(value - 1));
    return 0;
}

void PopupControlKRVImageOptions::RequestPopupList() {
    RequestControlAction();
}

bool PopupControlKRVImageOptions::isChoiceConflicted(const std::string &key, const QString &option,
                                                     const QString &choice, ppd_file_t *ppd) const {
    const hash_multimap *table = ctrlParentPanelPtr ? ctrlParentPanelPtr->Getxppd() : nullptr;
    if (!table || !ppd)
        return false;
    const QByteArray optionKeyword = option.toUtf8();
    const QByteArray choiceKeyword = choice.toUtf8();
    return table->anyOf(key, [&](const x_constraints &entry) {
        const ForbiddingChoice place = forbiddingChoice(*ppd, entry);
        return place.choice && optionKeyword == place.option->keyword &&
               choiceKeyword == place.choice->choice;
    });
}
