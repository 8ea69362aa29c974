#include "controls/two_state_control.h"

bool TwoStateControl::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    if (!InitializeTitle(bundle))
        return false;
    allocateBlocks(CtrlDataBlk::kWordSize);
    return true;
}

bool TwoStateControl::ReInitializeCtrl(const Bundle *bundle, ppd_file_t *) {
    return InitializeTitle(bundle);
}

std::optional<TwoStateControl::Change> TwoStateControl::change() const {
    const std::optional<int32_t> shown = shownValue();
    if (!shown || !ctrlUIDataBlkPtr || *shown == ctrlUIDataBlkPtr->word())
        return std::nullopt;
    return Change{ctrlUIDataBlkPtr->word(), *shown};
}

int32_t TwoStateControl::DoControlUpdateConstrain() {
    return change() ? BaseControlKRVImageOptions::DoControlUpdateConstrain() : 0;
}

int32_t TwoStateControl::DoControlHideConstrain() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->hideTable : nullptr;
    const std::optional<Change> step = change();
    if (!table || !step)
        return 0;
    HideControlConstrains(table->row(step->to));
    if (step->from >= 0)
        ShowControlConstrains(table->row(step->from));
    return 0;
}

int32_t TwoStateControl::DoControlConstrain() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->disableTable : nullptr;
    const std::optional<Change> step = change();
    if (!table || !step)
        return 0;
    DisableControlConstrains(table->row(step->to));
    if (step->from >= 0)
        EnableControlConstrains(table->row(step->from));
    return 0;
}
