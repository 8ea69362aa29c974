#pragma once

#include "platform/pde/pde_panel.h"
#include "platform/views/button_view.h"
#include "platform/views/form_loader.h"
#include "platform/views/popup_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/text_view.h"
#include "plugin/base/base_print_panel.h"
#include "plugin/main_panel_tables.h"
#include "plugin/product_info.h"

#include <QPointer>

class BrightMaxSTextCtrlKRV;
class BrightMiniSTextCtrlKRV;
class ColorBalanceWndKRV;
class GColorBalanceButtonKRV;
class GHelpButtonKRV;
class GImageSettingsButtonKRV;
class GOutputModeListCtrlKRV;
class GPPDListCtrlKRV;
class GPPDSliderBarControlKRV;
class GRadioButtonKRV;
class GRestoreDefaultButtonKRV;
class ImageAdjustmentBlackOverWndKRV;
class ImageAdjustmentInvalidateColorProfileWndKRV;
class ImageAdjustmentWindow;
class ImageAdjustmentWndKRV;
class PPDPopupControlKRVImageOptions;
class PPDStaticTextCtrlKRVImageOptions;
class PluginTypeListCtrlKRV;
class RGBCorrectionListCtrlKRV;
class RadioGroupKRVImageOptions;
class ScreenListCtrlKRV;
class VersionStringSTextKRVImageOptions;

/// The main panel: what the host print dialog talks to.
///
/// Three phases. Made: no controls yet; a first restore or shouldPrint with a PPD builds them.
/// Built: every callback works. Printing: from the first shouldPrint or save on. A panel goes back
/// to an earlier phase only if the host destroys its view: the next restore then builds it anew.
class ImageOptionsPDEk27 : public BasePrintPanelKRVImageOptions, public PDEPanel {
public:
    ImageOptionsPDEk27();
    /// Gives up the controls, then the view if the host hasn't taken it.
    ~ImageOptionsPDEk27() override;

    // What the host calls; see PDEPanel.
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() override;
    QStringList supportedPPDOptionKeys() override;
    void willShow() override;
    bool shouldHide() override;
    bool shouldPrint() override;
    bool shouldShowHelp() override;
    void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) override;
    bool restoreValuesAndReturnError(PDEError *error) override;
    bool saveValuesAndReturnError(PDEError *error) override;
    QVariantMap summaryInfo() override;
    void terminate() override;

    /// All that a first opening has to do, shown or not, and on every call the loading of values.
    /// @return false only if the help book could not be registered
    bool SimulationOpenPDE();

    void CreatePanel(QWidget *window) override;
    /// @return 0; 1 when the queue's options fit no product type; the base class's failure
    int32_t InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) override;
    int32_t Open() override;
    int32_t SetValueFromUIToControl() override;
    int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray) override;

    /// Hands the product type to the plug-in type list. @return whether there is a type and a list
    bool SetPrintTypeToPanel();

    // Questions of controls and windows.
    bool GetPDEStatus() const override { return gPDESyncSetUI; }
    bool getPrintTypeMailbox() const override { return isPrintTypeSavetoMailbox; }
    /// Whether the advanced radio button is on; true while it has no value, false without the
    /// button.
    bool IsAdvancedSettingAvailable() const override;
    /// Whether the colour mode is another than "Black"; true while none is selected, false without
    /// the list.
    bool IsColorModeAvailable() const override;
    /// Whether the colour balance check box is on; true while it has no value, false without it.
    bool IsColorBalanceAdjustmentAvailable() const override;
    /// Whether the job is saved to a mailbox: the stored print type reads as 5.
    bool IsJobTypeMailbox() const;
    bool isPrinting() const override { return gbIsPrint; }
    PPDPopupControlKRVImageOptions *getrgbccPopupList() const override;
    PPDPopupControlKRVImageOptions *getcmykccPopupList() const override;
    BaseControlKRVImageOptions *getgraphicsadvanceSetRdioCtrl() const override;
    PPDPopupControlKRVImageOptions *getcolormodePopupList() const override;
    BaseControlKRVImageOptions *getbrightnessSlider() const override;
    // The windows stand as long as the panel does; those that it hasn't built are inert.
    PopupWinInPanelKRVImageOptions *getColorBalanceWnd() const override;
    PopupWinInPanelKRVImageOptions *getImageAdjustmentWnd() const override;
    PopupWinInPanelKRVImageOptions *getImageAdjustmentBlackOverWnd() const override;
    PopupWinInPanelKRVImageOptions *getImageAdjustmentInvalidateColorProfileWndP() const;

    /// @param type  a row of ProductInfo; any other number gives 0
    void setPDEType(int32_t type);
    int32_t getPDEType() const { return pdeType; }
    /// @return the layout's name for the type
    const char *getPDENibFileNamePrintType() const;
    const ProductInfo *getProductInfoPtr() const { return kProductInfo.data(); }
    int32_t getProductInfoCont() const { return static_cast<int32_t>(kProductInfo.size()); }

    // Set by the plug-in when it makes the panel.
    bool bFirstInitialzePDE = false;
    bool gbIsPrint = false;
    bool isShouldPrintCalled = false;

private:
    std::vector<views::Outlet> outlets();
    void loadLayout();
    /// The PPD that the host has now, or null.
    ppd_file_t *hostPPD() const;
    // One row each of CreatePanel's list.
    void addTitle(PPDStaticTextCtrlKRVImageOptions *&field, TextView *view, const char *key);
    template <class Control, class View, class Record>
    void addBound(Control *&field, const QPointer<View> &view, const char *key, Record *iniData,
                  const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access, CtrlTag title);
    void addRadio(GRadioButtonKRV *&field, RadioView *view, RadioButtonIniData *iniData,
                  const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access);
    template <class Button>
    void addButton(Button *&field, ButtonView *view, const char *title);
    void addPluginTypeList();
    void addImageSettingsButton(const char *title);
    void addHelpButton(const char *page);
    void addVersionText(bool cdfSupport);
    void addColorBalanceWindow();
    /// Builds the image adjustment window that a PPD asks for; one that stands for another PPD is
    /// given up, one that fits stays.
    void addImageAdjustmentWindow(const Bundle *bundle, ppd_file_t *ppd);
    template <class Text>
    void addText(Text *&field, TextView *view, const char *key);
    /// A new constraint table for a PPD, from its cache file or its constraints.
    void buildConstraintTable(ppd_file_t *ppd);
    /// The host has changed the PPD: options, choices, table and product type anew.
    void resolveAgain(ppd_file_t *ppd);

    bool gPDESyncSetUI = false;
    bool isPrintTypeSavetoMailbox = false;
    int32_t pdeType = 0;

    QPointer<QWidget> ImageOptionsView;
    QPointer<TextView> ColorModeStaticText;
    QPointer<TextView> OutputModeStaticText;
    QPointer<TextView> BrightnessStaticText;
    QPointer<TextView> BrightnessMiniStaticText;
    QPointer<TextView> BrightnessMaxStaticText;
    QPointer<TextView> ImageTypeStaticText;
    QPointer<TextView> RGBColorCorrectionStaticText;
    QPointer<TextView> CMYKColorCorrectionStaticText;
    QPointer<TextView> ScreenStaticText;
    QPointer<PopupView> ColorModeList;
    QPointer<SliderView> BrightnessSlider;
    QPointer<PopupView> OutputModeList;
    QPointer<RadioView> graphicsbasicSetRdioBtn;
    QPointer<RadioView> graphicsadvanceSetRdioBtn;
    QPointer<PopupView> ImageTypeList;
    QPointer<PopupView> RGBColorCorrectionList;
    QPointer<PopupView> CMYKColorCorrectionList;
    QPointer<PopupView> ScreenList;
    QPointer<PopupView> plugintypeList;
    QPointer<ButtonView> colorbalanceButtonCtrl;
    QPointer<ButtonView> imageAdjustmentButtonCtrl;
    QPointer<ButtonView> restoredefaButton;
    QPointer<ButtonView> helpButton;
    QPointer<TextView> imageOptionsVerStringSTextCtrl;

    MainPanelRecords m_records;
    /// The PPD that the constraint table was made from, and the one that the controls stand on.
    ppd_file_t *m_tablePPD = nullptr;
    ppd_file_t *m_boundPPD = nullptr;

    PPDStaticTextCtrlKRVImageOptions *colormodeStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *outputmodeStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *brightnessStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *ImageTypeStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *RGBColorCorrectionStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *CMYKColorCorrectionStaticTextCtrl = nullptr;
    PPDStaticTextCtrlKRVImageOptions *ScreenStaticTextCtrl = nullptr;
    GPPDListCtrlKRV *colormodePopupListCtrl = nullptr;
    GPPDSliderBarControlKRV *brightnessSliderCtrl = nullptr;
    BrightMiniSTextCtrlKRV *brightnessMiniStaticTextCtrl = nullptr;
    BrightMaxSTextCtrlKRV *BrightnessMaxStaticTextCtrl = nullptr;
    GOutputModeListCtrlKRV *outputmodePopupListCtrl = nullptr;
    std::unique_ptr<RadioGroupKRVImageOptions> graphicsWndRgrpCtrl;
    GRadioButtonKRV *graphicsbasicSetRdioBtnCtrl = nullptr;
    GRadioButtonKRV *graphicsadvanceSetRdioBtnCtrl = nullptr;
    GPPDListCtrlKRV *imageTypePopupListCtrl = nullptr;
    RGBCorrectionListCtrlKRV *RGBColorCorrectionListCtrl = nullptr;
    GPPDListCtrlKRV *CMYKColorCorrectionListCtrl = nullptr;
    ScreenListCtrlKRV *screenListConctrl = nullptr;
    PluginTypeListCtrlKRV *pluginTypeListCtrl = nullptr;
    GColorBalanceButtonKRV *colorbalanceButtonCtrlPtr = nullptr;
    GImageSettingsButtonKRV *imageAdjustmentButtonCtrlPtr = nullptr;
    GRestoreDefaultButtonKRV *restoredefaButtonCtrl = nullptr;
    GHelpButtonKRV *helpButtonCtrl = nullptr;
    VersionStringSTextKRVImageOptions *imageOptionsVerStringSTextCtrlPtr = nullptr;
    std::unique_ptr<ColorBalanceWndKRV> colorBalanceWndPtr;
    std::unique_ptr<ImageAdjustmentWndKRV> imageAdjustmentWndPtr;
    std::unique_ptr<ImageAdjustmentBlackOverWndKRV> imageAdjustmentBlackOverWndPtr;
    std::unique_ptr<ImageAdjustmentInvalidateColorProfileWndKRV>
        imageAdjustmentInvalidateColorProfileWndPtr;
    ImageAdjustmentWindow *m_adjustmentWindow = nullptr; ///< the one that is built
};
