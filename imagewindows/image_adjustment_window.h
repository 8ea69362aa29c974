#pragma once

#include "controls/group_box.h"
#include "imagewindows/image_adjustment_tables.h"
#include "imagewindows/popup_window.h"

class CMYKCorrectionListCtrlIAKRV;
class CMYKTargetMediaListCtrlIAKRV;
class GCheckBoxExtKRV;
class GHelpButtonKRV;
class GImageAdjCancelButtonKRV;
class GOKButtonIAKRV;
class GPPDListCtrlKRV;
class GRestoreDefaultButtonKRV;
class PPDStaticTextCtrlKRVImageOptions;
class PopupControlKRVImageOptions;
class RGBCorrectionListCtrlIAKRV;

/// What the image adjustment windows share: the colour correction lists of the PPD in full.
///
/// The lists mark the PPD at once, so that Cancel puts the marks back. Those of RGB and CMYK
/// correction show at each opening what the main panel's lists show, and OK hands their items back.
/// Conflicts come from a constraint table of the window's own.
///
/// The object owns its form. One whose form can't be loaded is inert.
class ImageAdjustmentWindow : public PopupWinInPanelKRVImageOptions {
public:
    ~ImageAdjustmentWindow() override;

    /// Loads the form anew. A failure is logged.
    /// @return owned by this object; null if the form can't be loaded
    ModalWindow *loadWindow(const Bundle *bundle);
    /// The record in which the main panel keeps the product type; without one the window has no
    /// product type and hides nothing for it. Called before CreatePanel.
    /// @param record  borrowed for as long as the controls live
    void setPluginTypeRecord(PopupIniData *record) { m_plugintypeList = record; }

    using PopupWinInPanelKRVImageOptions::CreatePanel;
    /// Makes the controls on the views that the window has.
    /// @param window          what loadWindow gave; null leaves the object inert
    /// @param theWinTitleStr  the localisation key of the title
    void CreatePanel(QWidget *window, const QString &theWinTitleStr);
    /// Initialises each control twice: without a constraint table, then with the window's new one,
    /// from the cache file that the PPD names or from its constraints.
    /// @return 0, or the failure of a sweep over the controls
    int32_t InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) override;
    int32_t ReInitializeUserPane() override;
    using PopupWinInPanelKRVImageOptions::InitializeUserPaneTitle;
    /// Sets the title from the strings table that the PPD names.
    /// @return 1 if a title was set; 0 without a key, a bundle or a window
    int32_t InitializeUserPaneTitle();
    /// Puts the disable row of the main panel's Advanced button in force while that is off.
    void InitializePaneConstrains();
    /// Hides the CMYK group for a PPD with neither of its two options.
    void DoGroupBoxHideCheck(ppd_file_t *ppd);
    /// Shows the committed values, for the mirrored lists those of the main panel, brings the
    /// conflicts up to date and runs the window. Nothing is initialised anew. @return 0
    int32_t ActivateWindow() override;
    /// Rows and enabled items of all lists := the current marks. Nothing without a PPD.
    void SyncMarkedPPD();
    /// Marks the committed values of the six lists again; a check box keeps its mark. Nothing if a
    /// list or the PPD is missing.
    void RestoreMarkedPPD() override;
    /// Adds nothing while the job has no colour. @return 0
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;

protected:
    /// The form's file name, without its ending.
    virtual QString formName() const = 0;
    /// Makes what a window has between the CMYK group and the buttons.
    virtual void addFurtherControls();

    /// The window's view of that name and class, or null.
    template <class View>
    View *outlet(const char *name) const;
    void addGroupBox(GroupBoxControlKRVImageOptions &field, const char *name, const char *title);
    void addCheckBox(GCheckBoxExtKRV *&field, const char *name, const char *key,
                     CheckBoxIniData *iniData, const CtrlAccessInfo *access);

    ImageAdjustmentRecords m_records;

private:
    void addTitle(PPDStaticTextCtrlKRVImageOptions *&field, const char *name, const char *key);
    template <class List>
    void addList(List *&field, const char *name, const char *key, PopupIniData *iniData,
                 const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access, CtrlTag title);
    template <class Button>
    void addButton(Button *&field, const char *name, const char *title);
    void addPluginTypeList();
    void addHelpButton();

    PopupIniData *m_plugintypeList = nullptr;

    PPDStaticTextCtrlKRVImageOptions *rgbcolorcorrectionIASTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *rgbinputprofileIASTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *rgbgammacorrectionIASTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *rgbcolortemperatureIASTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *cmykcolorcorrectionIASTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *cmyktargetpaperIASTextCtrl = nullptr;
    RGBCorrectionListCtrlIAKRV *rgbcolorcorrectionIAPopupListCtrl = nullptr;
    GPPDListCtrlKRV *rgbinputprofileIAPopupListCtrl = nullptr;
    GPPDListCtrlKRV *rgbgammacorrectionIAPopupListCtrl = nullptr;
    GPPDListCtrlKRV *rgbcolortemperatureIAPopupListCtrl = nullptr;
    CMYKCorrectionListCtrlIAKRV *cmykcolorcorrectionIAPopupListCtrl = nullptr;
    CMYKTargetMediaListCtrlIAKRV *targetpaperIAPopupListCtrl = nullptr;
    PopupControlKRVImageOptions *plugintypeIAPopupListCtrl = nullptr;
    GroupBoxControlKRVImageOptions RGBCorrectionGroupBoxCtrl;
    GroupBoxControlKRVImageOptions CMYKCorrectionGroupBoxCtrl;
    GOKButtonIAKRV *OKButtonCtrlIA = nullptr;
    GImageAdjCancelButtonKRV *cancelButtonCtrlIA = nullptr;
    GRestoreDefaultButtonKRV *restoredefaButtonCtrlIA = nullptr;
    GHelpButtonKRV *helpButtonCtrlIA = nullptr;
};

/// The window of a queue without the options of the other two.
class ImageAdjustmentWndKRV : public ImageAdjustmentWindow {
protected:
    QString formName() const override;
};

/// The window with a check box for black overprint.
class ImageAdjustmentBlackOverWndKRV : public ImageAdjustmentWindow {
public:
    ~ImageAdjustmentBlackOverWndKRV() override;

protected:
    QString formName() const override;
    void addFurtherControls() override;

    GroupBoxControlKRVImageOptions blackGroupBoxPtr;
    GCheckBoxExtKRV *blackOverprintCheckBoxPtr = nullptr;
};

/// The window with a check box for ignoring embedded colour profiles. The main panel never builds
/// it: a queue with that option gets the window for black overprint.
class ImageAdjustmentInvalidateColorProfileWndKRV : public ImageAdjustmentWindow {
public:
    ~ImageAdjustmentInvalidateColorProfileWndKRV() override;

protected:
    QString formName() const override;
    void addFurtherControls() override;

    GroupBoxControlKRVImageOptions invalidateColorProfileGroupBoxPtr;
    GCheckBoxExtKRV *invalidateColorProfileCheckBoxPtr = nullptr;
};
