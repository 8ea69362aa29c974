// Questions of controls and windows on the state of the job and of the panel's controls.

#include "controls/check_box_family.h"
#include "controls/popup_family.h"
#include "controls/radio_family.h"
#include "controls/slider_family.h"
#include "controls/value_text.h"
#include "imagewindows/color_balance_window.h"
#include "imagewindows/image_adjustment_window.h"
#include "imagewindows/rgb_correction_list.h"
#include "platform/preferences.h"
#include "plugin/image_options_pde.h"
#include "ppd/print_session.h"
#include "services/system_version.h"

namespace {

/// The stored print type of a job that is saved to a mailbox.
constexpr int kPrintTypeMailbox = 5;
constexpr qsizetype kSettingBytes = 255; ///< of a setting's text

/// A control's committed value is 1; true while it has none.
bool isOn(BaseControlKRVImageOptions *control) {
    const CtrlDataBlk *value = control->GetValueFromControl();
    return !value || value->word() == 1;
}

} // namespace

PPDPopupControlKRVImageOptions *ImageOptionsPDEk27::getrgbccPopupList() const {
    return RGBColorCorrectionListCtrl;
}

PPDPopupControlKRVImageOptions *ImageOptionsPDEk27::getcmykccPopupList() const {
    return CMYKColorCorrectionListCtrl;
}

BaseControlKRVImageOptions *ImageOptionsPDEk27::getgraphicsadvanceSetRdioCtrl() const {
    return graphicsadvanceSetRdioBtnCtrl;
}

PPDPopupControlKRVImageOptions *ImageOptionsPDEk27::getcolormodePopupList() const {
    return colormodePopupListCtrl;
}

BaseControlKRVImageOptions *ImageOptionsPDEk27::getbrightnessSlider() const {
    return brightnessSliderCtrl;
}

PopupWinInPanelKRVImageOptions *ImageOptionsPDEk27::getColorBalanceWnd() const {
    return colorBalanceWndPtr.get();
}

PopupWinInPanelKRVImageOptions *ImageOptionsPDEk27::getImageAdjustmentWnd() const {
    return imageAdjustmentWndPtr.get();
}

PopupWinInPanelKRVImageOptions *ImageOptionsPDEk27::getImageAdjustmentBlackOverWnd() const {
    return imageAdjustmentBlackOverWndPtr.get();
}

PopupWinInPanelKRVImageOptions *
ImageOptionsPDEk27::getImageAdjustmentInvalidateColorProfileWndP() const {
    return imageAdjustmentInvalidateColorProfileWndPtr.get();
}

bool ImageOptionsPDEk27::IsAdvancedSettingAvailable() const {
    BaseControlKRVImageOptions *radio = getgraphicsadvanceSetRdioCtrl();
    return radio && isOn(radio);
}

bool ImageOptionsPDEk27::IsColorModeAvailable() const {
    PPDPopupControlKRVImageOptions *list = getcolormodePopupList();
    return list && list->GetUISelectStr() != QLatin1String("Black");
}

bool ImageOptionsPDEk27::IsColorBalanceAdjustmentAvailable() const {
    GCheckBoxKRV *box = colorBalanceWndPtr->getgraphicWndAdjustCBCboxCtrl();
    return box && isOn(box);
}

bool ImageOptionsPDEk27::IsJobTypeMailbox() const {
    QString key = QLatin1String("");
    if (!CreateKeyWithCurrentPrinter(
            QStringLiteral("com.velmora.mvo.printsettings.PrintTypeReference"),
            GetCurrentPrinterString(), &key))
        return false;
    QString value;
    if (systemVersion() < kSystemVersion1070) {
        using namespace preferences;
        value = CFPreferencesCopyValue(key, kCFPreferencesAnyApplication, kCFPreferencesCurrentUser,
                                       kCFPreferencesCurrentHost);
    } else if (m_pSettings) {
        PMPrintSettingsGetValue(m_pSettings, key, &value);
    }
    return leadingInteger(value.toUtf8().left(kSettingBytes).constData()) == kPrintTypeMailbox;
}
