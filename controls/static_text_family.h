#pragma once

#include "controls/base_control.h"

class TextView;

/// A text that isn't edited. It carries no value; being disabled shows in its colour.
class StaticTextEditControlKRVImageOptions : public BaseControlKRVImageOptions {
public:
    /// @param summaryInfo  the localisation key of the text, or null for none
    void CreateControl(TextView *view, TextEditIniData *iniData, const CtrlConstrainInfo *constrain,
                       const CtrlAccessInfo *access, const QString &user,
                       const TextEditFilterData *filterData, const char *summaryInfo);

    /// View := the text of the key. @return true without a bundle, false without a key
    virtual bool InitializeTitle(const Bundle *bundle);
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Static texts stay when a product lacks their control.
    void PPDCtrlShow() override;
    void PPDCtrlHide() override;
    int32_t Enable() override;
    int32_t Disable() override;
    int32_t ResetStatus() override;
    void releaseHolds() override;
    /// View := a UTF-8 text. @return true in any case
    bool SetExternalValueToUI(const void *value, uint32_t size) override;

protected:
    TextView *textView() const;
    void setText(const QString &text);

    TextEditIniData *textEditIniDataPtr = nullptr;
    const TextEditFilterData *textEditFilterDataPtr = nullptr;
    const char *summarytextRef = nullptr;

private:
    void colourAsEnabled();
};

/// The title of a list: its text comes from the list, which takes it from the PPD.
class PPDStaticTextCtrlKRVImageOptions : public StaticTextEditControlKRVImageOptions {
public:
    /// @param ppdKey  the option that the title belongs to; not kept, since the list brings the
    /// text
    void CreateControl(TextView *view, const char *ppdKey, TextEditIniData *iniData,
                       const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                       const QString &user, const TextEditFilterData *filterData);
    /// Loads no title and makes no blocks. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
};

/// The label at the slider's lower end: "-" and half the slider's range.
class BrightMiniSTextCtrlKRV : public StaticTextEditControlKRVImageOptions {
public:
    /// @return false without a bundle, a panel or a slider
    bool InitializeTitle(const Bundle *bundle) override;
};

/// The label at the slider's upper end: "+" and half the slider's range.
class BrightMaxSTextCtrlKRV : public StaticTextEditControlKRVImageOptions {
public:
    /// @return false without a bundle, a panel or a slider
    bool InitializeTitle(const Bundle *bundle) override;
};

/// The bundle's version, "Ver." and the number, with a final "." if the queue names a cache file
/// that can't be read. Hidden until something shows it.
class VersionStringSTextKRVImageOptions : public StaticTextEditControlKRVImageOptions {
public:
    void CreateControl(TextView *view, const char *title, bool cdfSupport);
    bool InitializeTitle(const Bundle *bundle) override;
    /// Only hides the view. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Hides the view on system versions below 0x1070; touches no count.
    int32_t ResetStatus() override;

protected:
    bool IsCDFSupported = false;
};
