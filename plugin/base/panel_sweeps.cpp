// A panel's sweeps: one call on each control, then on each child window.

#include "plugin/base/base_print_panel.h"

int32_t BasePrintPanelKRVImageOptions::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    pdeBundleRef = bundle;
    InitializeUserPaneControl(bundle, ppd);
    SetControlEventHandler();
    InitilaizeChildWindow(bundle, ppd);
    return ConstrainPanelControlFromPPD(ppd);
}

int32_t BasePrintPanelKRVImageOptions::Open() {
    eachControl([](auto &control) { control.Open(); });
    eachWindow(0, [](auto &window) { return window.Open(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::Close() {
    eachControl([](auto &control) { control.Close(); });
    eachWindow(0, [](auto &window) { return window.Close(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::GetSummaryText(QVariantMap *summary,
                                                      QStringList *orderArray) {
    eachControl([=](auto &control) { control.GetSummaryText(summary, orderArray); });
    eachWindow(0, [=](auto &window) { return window.GetSummaryText(summary, orderArray); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::InitializeUserPaneControl(const Bundle *bundle,
                                                                 ppd_file_t *ppd) {
    eachControl([=](auto &control) { control.InitializeCtrl(bundle, ppd); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::InitilaizeChildWindow(const Bundle *bundle,
                                                             ppd_file_t *ppd) {
    eachWindow(0, [=](auto &window) { return window.InitializeUserPane(bundle, ppd); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::SetControlEventHandler() {
    eachControl([](auto &control) { control.setTargetandAction(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::ConstrainPanelControlFromPPD(ppd_file_t *ppd) {
    if (fCtrlInstallableGroupArray)
        for (const auto &control : *fCtrlInstallableGroupArray)
            control->ConstrainPanelControlFromPPD(ppd);
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) {
    eachControl([=](auto &control) { control.UpdateConflictsPanelControlFromPPD(ppd); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::SetUIDataToIniData() {
    eachControl([](auto &control) { control.SetUIValueToIniData(); });
    eachWindow(0, [](auto &window) { return window.SetUIDataToIniData(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::SetDefaultValueToUI() {
    eachControl([](auto &control) {
        control.SetDefaultValueToUI();
        control.SimulationUIEventHandler();
    });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::GetValueFromPreference() {
    eachControl([](auto &control) {
        if (!control.GetValueFromPreference())
            control.SetControlValueToDefault();
    });
    eachWindow(0, [](auto &window) { return window.GetValueFromPreference(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::GetValueFromPreferenceWithPrinterSettings() {
    eachControl([](auto &control) {
        if (!control.GetValueFromPreferenceWithPrinterSettings())
            control.SetControlValueToDefault();
    });
    eachWindow(0, [](auto &window) { return window.GetValueFromPreferenceWithPrinterSettings(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::preferenceResult(bool last, int32_t windowReply) const {
    if (!fCtrlGroupArray)
        return 0;
    return fWindowGroupArray && !fWindowGroupArray->empty() ? windowReply : 1 - int32_t{last};
}

int32_t BasePrintPanelKRVImageOptions::SetValueToPreference() {
    bool last = true;
    eachControl([&last](auto &control) { last = control.SetValueToPreference(); });
    return preferenceResult(
        last, eachWindow(0, [](auto &window) { return window.SetValueToPreference(); }));
}

int32_t BasePrintPanelKRVImageOptions::SetValueToPreferenceWithPrinterSettings() {
    bool last = true;
    eachControl(
        [&last](auto &control) { last = control.SetValueToPreferenceWithPrinterSettings(); });
    return preferenceResult(last, eachWindow(0, [](auto &window) {
                                return window.SetValueToPreferenceWithPrinterSettings();
                            }));
}

int32_t BasePrintPanelKRVImageOptions::SetValueToTicketEncryptArray(
    PMPrintSettings settings, bool withParam, const QList<QWidget *> *encryptArray) {
    eachControl([=](auto &control) {
        if (encryptArray)
            control.SetValueToTicketEncryptArray(settings, withParam, *encryptArray);
        else
            control.SetValueToTicket(settings, withParam);
    });
    eachWindow(0, [=](auto &window) {
        return window.SetValueToTicketEncryptArray(settings, withParam, encryptArray);
    });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::SetValueToTicket(PMPrintSettings settings, bool withParam) {
    if (!fCtrlGroupArray)
        return 0;
    eachControl([=](auto &control) { control.SetValueToTicket(settings, withParam); });
    eachWindow(0, [=](auto &window) { return window.SetValueToTicket(settings, withParam); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::ReInitializeUserPaneControl(const Bundle *bundle,
                                                                   ppd_file_t *ppd) {
    eachControl([=](auto &control) {
        control.ReInitializeCtrl(bundle, ppd);
        control.ResetStatus();
    });
    return 0;
}

// Two passes: every control shows its value before the first simulated event runs.
int32_t BasePrintPanelKRVImageOptions::SetCurrentValueToUI() {
    eachControl([](auto &control) { control.SetControlValueToUI(); });
    eachControl([](auto &control) { control.SimulationUIEventHandler(); });
    eachWindow(0, [](auto &window) { return window.SetCurrentValueToUI(); });
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::SetValueFromUIToControl() {
    eachControl([](auto &control) {
        if (control.GetValueFromUI())
            control.SetValueFromUIToControl();
    });
    return 0;
}

void BasePrintPanelKRVImageOptions::releaseHolds() {
    eachControl([](auto &control) { control.releaseHolds(); });
    eachWindow(0, [](auto &window) {
        window.releaseHolds();
        return 0;
    });
}

bool BasePrintPanelKRVImageOptions::GetValueFromPreset() {
    eachControl([](auto &control) {
        if (!control.GetValueToPreset())
            control.SetControlValueToDefault();
    });
    eachWindow(true, [](auto &window) { return window.GetValueFromPreset(); });
    return true;
}

int32_t BasePrintPanelKRVImageOptions::ResetControlStatus() {
    eachControl([](auto &control) {
        if (control.GetControlPtr())
            control.ResetStatus();
    });
    eachWindow(0, [](auto &window) { return window.ResetControlStatus(); });
    if (ppd_file_t *ppd = GetPPDRefFromCurrentPrintSession())
        ConstrainPanelControlFromPPD(ppd);
    return 0;
}

int32_t BasePrintPanelKRVImageOptions::ResetCurrentControlStatus() {
    eachControl([](auto &control) {
        if (control.GetControlPtr())
            control.ResetStatus();
    });
    if (ppd_file_t *ppd = GetPPDRefFromCurrentPrintSession())
        ConstrainPanelControlFromPPD(ppd);
    return 0;
}
