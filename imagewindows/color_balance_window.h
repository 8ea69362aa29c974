#pragma once

#include "imagewindows/color_balance_tables.h"
#include "imagewindows/color_target_list.h"
#include "imagewindows/popup_window.h"
#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/popup_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "platform/views/text_view.h"

class GCancelButtonKRV;
class GCheckBoxKRV;
class GHIViewControlKRV;
class GHelpButtonKRV;
class GLittleArrayControlKRV;
class GOKButtonKRV;
class GRestoreDefaultButtonKRV;
class GTextEditCtrlKRV;
class ImageGradsViewKRV;
class StaticTextEditControlKRVImageOptions;

/// The colour balance window: black, cyan, magenta and yellow, each at low, mid and high density.
///
/// The target list says which colour's fields show, the check box whether the densities count at
/// all. Densities mark nothing in the PPD until they are saved; the check box marks its option at
/// each click, and Cancel leaves that mark.
class ColorBalanceWndKRV : public PopupWinInPanelKRVImageOptions {
public:
    /// Ends a run, then gives up the controls and the form.
    ~ColorBalanceWndKRV() override;

    /// Loads the form anew.
    /// @return the form, which the window keeps; null, with a line in the log, without one
    ModalWindow *loadWindow(const Bundle *bundle);
    /// Makes the controls on the views of the form.
    /// @param window    the form; null leaves the object inert
    /// @param winTitle  the localisation key of the title
    void ColorBalanceWnd(QWidget *window, const QString &winTitle);
    /// As the base class, for a PPD that the controls stand on from the beginning.
    int32_t InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) override;
    /// The hide row of the target list's default.
    void InitializePaneConstrains();
    /// Shows the committed values and runs the window; the first time the target list's start
    /// comes between the two. @return 0
    int32_t ActivateWindow() override;
    /// Each range's title names the field that shows now: Tab order, mnemonic, screen reader.
    void labelShownFields();

    // Null before ColorBalanceWnd and without the view.
    ColorTargetListCtrlKRV *getgWndTargetColorLboxCtrl() const {
        return gWndTargetColorLboxCtrlPtr;
    }
    GCheckBoxKRV *getgraphicWndAdjustCBCboxCtrl() const { return graphicWndAdjustCBCboxCtrlPtr; }

private:
    template <class Control>
    using Densities = std::array<std::array<Control, kDensityRanges>, kTargetColors>;

    std::vector<views::Outlet> outlets();
    void addText(StaticTextEditControlKRVImageOptions *&field, TextView *view, const char *key);
    template <class Button>
    void addButton(Button *&field, ButtonView *view, const char *title);
    void addHelpButton(const char *page);
    void addTargetList();
    void addCheckBox();
    void addNumberEdit(int color, int range);
    template <class Stepper>
    void addStepper(int color, int range);
    void addPreview();

    QPointer<TextView> gWndTargetColorSTxtCtrl;
    QPointer<TextView> gWndLowDCBStxtCtrl;
    QPointer<TextView> gWndLowDCBSStxtCtrl;
    QPointer<TextView> gWndMidDCBStxtCtrl;
    QPointer<TextView> gWndMidDCBSStxtCtrl;
    QPointer<TextView> gWndHighDCBStxtCtrl;
    QPointer<TextView> gWndHighDCBSStxtCtrl;
    QPointer<ButtonView> graphicWndCnclPushCtrl;
    QPointer<ButtonView> graphicWndOKPushCtrl;
    QPointer<ButtonView> graphicWndRstrPushCtrl;
    QPointer<ButtonView> graphicWndHelpPushCtrl;
    QPointer<PopupView> gWndTargetColorLboxCtrl;
    QPointer<CheckBoxView> graphicWndAdjustCBCboxCtrl;
    Densities<QPointer<TextFieldView>> gWndDCBEtxtCtrl;
    Densities<QPointer<StepperView>> gWndDCBLarrCtrl;
    QPointer<ImageGradsViewKRV> imageGradsView;

    ColorBalanceRecords m_records;

    StaticTextEditControlKRVImageOptions *gWndTargetColorSTxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndLowDCBStxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndLowDCBSStxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndMidDCBStxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndMidDCBSStxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndHighDCBStxtCtrlPtr = nullptr;
    StaticTextEditControlKRVImageOptions *gWndHighDCBSStxtCtrlPtr = nullptr;
    GCancelButtonKRV *graphicWndCnclPushCtrlPtr = nullptr;
    GOKButtonKRV *graphicWndOKPushCtrlPtr = nullptr;
    GRestoreDefaultButtonKRV *graphicWndRstrPushCtrlPtr = nullptr;
    GHelpButtonKRV *graphicWndHelpPushCtrlPtr = nullptr;
    ColorTargetListCtrlKRV *gWndTargetColorLboxCtrlPtr = nullptr;
    GCheckBoxKRV *graphicWndAdjustCBCboxCtrlPtr = nullptr;
    Densities<GTextEditCtrlKRV *> gWndDCBEtxtCtrlPtr{};
    Densities<GLittleArrayControlKRV *> gWndDCBLarrCtrlPtr{};
    GHIViewControlKRV *gWndCBImageHviewCtrlPtr = nullptr;
};
