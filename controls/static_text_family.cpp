#include "controls/static_text_family.h"

#include "platform/bundle.h"
#include "platform/views/slider_view.h"
#include "platform/views/text_view.h"
#include "services/system_version.h"

void StaticTextEditControlKRVImageOptions::CreateControl(TextView *view, TextEditIniData *iniData,
                                                         const CtrlConstrainInfo *constrain,
                                                         const CtrlAccessInfo *access,
                                                         const QString &user,
                                                         const TextEditFilterData *filterData,
                                                         const char *summaryInfo) {
    BaseControlKRVImageOptions::CreateControl(view);
    setRecords(constrain, access, user);
    textEditIniDataPtr = iniData;
    textEditFilterDataPtr = filterData;
    summarytextRef = summaryInfo;
}

TextView *StaticTextEditControlKRVImageOptions::textView() const {
    return qobject_cast<TextView *>(ControlPtr.data());
}

void StaticTextEditControlKRVImageOptions::setText(const QString &text) {
    if (TextView *view = textView())
        view->setStringValue(text);
}

bool StaticTextEditControlKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!bundle)
        return true;
    if (!summarytextRef)
        return false;
    setText(localized(bundle, summarytextRef));
    return true;
}

bool StaticTextEditControlKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    return InitializeTitle(bundle);
}

bool StaticTextEditControlKRVImageOptions::ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::ReInitializeCtrl(bundle, ppd);
    return InitializeTitle(bundle);
}

void StaticTextEditControlKRVImageOptions::PPDCtrlShow() {}
void StaticTextEditControlKRVImageOptions::PPDCtrlHide() {}

void StaticTextEditControlKRVImageOptions::colourAsEnabled() {
    if (TextView *view = textView())
        view->setTextDimmed(!views::isEnabled(view));
}

int32_t StaticTextEditControlKRVImageOptions::Enable() {
    BaseControlKRVImageOptions::Enable();
    colourAsEnabled();
    return 0;
}

int32_t StaticTextEditControlKRVImageOptions::Disable() {
    BaseControlKRVImageOptions::Disable();
    colourAsEnabled();
    return 0;
}

int32_t StaticTextEditControlKRVImageOptions::ResetStatus() {
    BaseControlKRVImageOptions::ResetStatus();
    colourAsEnabled();
    return 0;
}

void StaticTextEditControlKRVImageOptions::releaseHolds() {
    BaseControlKRVImageOptions::releaseHolds();
    colourAsEnabled();
}

bool StaticTextEditControlKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    if (value)
        setText(QString::fromUtf8(static_cast<const char *>(value)));
    return true;
}

void PPDStaticTextCtrlKRVImageOptions::CreateControl(
    TextView *view, const char *, TextEditIniData *iniData, const CtrlConstrainInfo *constrain,
    const CtrlAccessInfo *access, const QString &user, const TextEditFilterData *filterData) {
    StaticTextEditControlKRVImageOptions::CreateControl(view, iniData, constrain, access, user,
                                                        filterData, nullptr);
}

bool PPDStaticTextCtrlKRVImageOptions::InitializeCtrl(const Bundle *, ppd_file_t *) {
    return true;
}

namespace {

/// Half of the range that the panel's brightness slider shows.
/// @return false without a bundle, a panel or a slider
bool halfBrightnessRange(const Bundle *bundle, const ControlPanel *panel, int *half) {
    const BaseControlKRVImageOptions *slider =
        bundle && panel ? panel->getbrightnessSlider() : nullptr;
    const auto *view = slider ? qobject_cast<SliderView *>(slider->GetControlPtr()) : nullptr;
    if (!view)
        return false;
    *half = (view->maxValue() - view->minValue()) / 2;
    return true;
}

} // namespace

bool BrightMiniSTextCtrlKRV::InitializeTitle(const Bundle *bundle) {
    int half = 0;
    if (!halfBrightnessRange(bundle, ctrlParentPanelPtr, &half))
        return false;
    setText(QString::asprintf("-%d", half));
    return true;
}

bool BrightMaxSTextCtrlKRV::InitializeTitle(const Bundle *bundle) {
    int half = 0;
    if (!halfBrightnessRange(bundle, ctrlParentPanelPtr, &half))
        return false;
    setText(QString::asprintf("+%d", half));
    return true;
}

void VersionStringSTextKRVImageOptions::CreateControl(TextView *view, const char *title,
                                                      bool cdfSupport) {
    StaticTextEditControlKRVImageOptions::CreateControl(view, nullptr, nullptr, nullptr, QString(),
                                                        nullptr, title);
    IsCDFSupported = cdfSupport;
}

bool VersionStringSTextKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!bundle)
        return true;
    QString version = bundle->infoValue(QStringLiteral("CFBundleVersion")).toString();
    version.replace(QStringLiteral(" Build "), QStringLiteral("."));
    setText(QStringLiteral("Ver.") + version + (IsCDFSupported ? QString() : QStringLiteral(".")));
    return true;
}

bool VersionStringSTextKRVImageOptions::InitializeCtrl(const Bundle *, ppd_file_t *) {
    views::setHidden(ControlPtr, true);
    return true;
}

int32_t VersionStringSTextKRVImageOptions::ResetStatus() {
    if (systemVersion() < kSystemVersion1070)
        views::setHidden(ControlPtr, true);
    return 0;
}
