#pragma once

#include "controls/records/tags.h"
#include "platform/cups_ppd.h"
#include "platform/print_core.h"

#include <QString>

class BaseControlKRVImageOptions;
class Bundle;
class PDEPluginCallback;
class PPDPopupControlKRVImageOptions;
class PopupWinInPanelKRVImageOptions;
class hash_multimap;

/// What a control asks of the panel or window that owns it.
///
/// Panels own controls, and controls ask their panel; this class stands between the two so that
/// neither includes the other. All pointers that it answers are borrowed.
class ControlPanel {
public:
    virtual ~ControlPanel() = default;

    /// The control whose view has the tag, in this panel or one of its child windows; null if none.
    virtual BaseControlKRVImageOptions *GetPanelControl(CtrlTag tag) = 0;
    virtual ppd_file_t *GetCurrentPPD() const = 0;
    virtual PMPrintSettings GetCurrentPMPrintSettings() const = 0;
    virtual PDEPluginCallback *GetCurrentPDECallbackObj() const = 0;
    /// Identifies the current printer in preference keys.
    virtual QString GetCurrentPrinterString() const = 0;
    /// The extended constraint table, asked for each time and never kept; null before it exists.
    virtual const hash_multimap *Getxppd() const = 0;
    virtual const Bundle *GetPDEBundleRef() const = 0;
    /// The strings table of the panel; null for the default one.
    virtual QString localizeTableName() const = 0;
    /// Brings the conflict display of the panel's controls up to date.
    virtual int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) = 0;
    /// The panel that owns this window; null for the main panel.
    virtual ControlPanel *GetParentWnd() const = 0;

    // Questions on the state of the job and of the neighbours. A panel that doesn't know answers as
    // it would with none of its controls built.

    /// True while values are being restored or shown by the program, not changed by the user.
    virtual bool GetPDEStatus() const { return false; }
    /// True when the job is saved to a mailbox.
    virtual bool getPrintTypeMailbox() const { return false; }
    virtual bool IsAdvancedSettingAvailable() const { return false; }
    virtual bool IsColorModeAvailable() const { return false; }
    virtual bool IsColorBalanceAdjustmentAvailable() const { return false; }
    /// True from the first shouldPrint or save on.
    virtual bool isPrinting() const { return false; }
    // The main panel's controls and windows that others ask for; null where there is none.
    virtual BaseControlKRVImageOptions *getbrightnessSlider() const { return nullptr; }
    virtual BaseControlKRVImageOptions *getgraphicsadvanceSetRdioCtrl() const { return nullptr; }
    virtual PPDPopupControlKRVImageOptions *getcolormodePopupList() const { return nullptr; }
    virtual PPDPopupControlKRVImageOptions *getrgbccPopupList() const { return nullptr; }
    virtual PPDPopupControlKRVImageOptions *getcmykccPopupList() const { return nullptr; }
    virtual PopupWinInPanelKRVImageOptions *getColorBalanceWnd() const { return nullptr; }
    virtual PopupWinInPanelKRVImageOptions *getImageAdjustmentWnd() const { return nullptr; }
    virtual PopupWinInPanelKRVImageOptions *getImageAdjustmentBlackOverWnd() const {
        return nullptr;
    }
};
