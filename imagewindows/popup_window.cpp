#include "imagewindows/popup_window.h"

#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/views/text_field_view.h"
#include "services/bundle_identity.h"

PopupWinInPanelKRVImageOptions::~PopupWinInPanelKRVImageOptions() {
    PopupWinInPanelKRVImageOptions::endRun();
    BasePrintPanelKRVImageOptions::terminate(); // the controls let go of their views first
    delete m_form;
}

ModalWindow *
PopupWinInPanelKRVImageOptions::loadForm(const Bundle *bundle, const QString &name,
                                         const std::vector<views::Outlet> &outlets,
                                         const std::vector<views::ViewClass> &classes) {
    terminate();
    delete m_form;
    QString error = QStringLiteral("the bundle has no such form");
    const QString path = bundle ? bundle->resourcePath(name, QStringLiteral("nib")) : QString();
    QWidget *root = path.isNull() ? nullptr : views::loadForm(path, outlets, &error, classes);
    m_form = qobject_cast<ModalWindow *>(root);
    if (root && !m_form) {
        error = QStringLiteral("the form is no window");
        delete root;
    }
    if (!m_form)
        qCWarning(panelLog, "%s: %s", qUtf8Printable(name), qUtf8Printable(error));
    return m_form;
}

void PopupWinInPanelKRVImageOptions::PopupWinInPanel(QWidget *window, const QString &winTitle) {
    CreatePanel(window);
    if (window != m_form)
        delete m_form;
    winTitleTextRef = winTitle;
    isActived = false;
}

int32_t PopupWinInPanelKRVImageOptions::InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd) {
    if (currentPPD && ppd != currentPPD)
        LocalizeTableName = QString(); // a table that another PPD named
    if (LocalizeTableName.isNull())
        takeLocalizeTable(ppd);
    InitializeUserPaneTitle(bundle);
    InitializeUserPaneControl(bundle, ppd);
    pdeBundleRef = bundle;
    currentPPD = ppd;
    SetControlEventHandler();
    return 0;
}

int32_t PopupWinInPanelKRVImageOptions::ReInitializeUserPane() {
    ReInitializeUserPaneControl(pdeBundleRef, currentPPD);
    ReInitializeUserPaneTitle();
    SetControlEventHandler();
    return 0;
}

int32_t PopupWinInPanelKRVImageOptions::ActivateWindow() {
    if (!canOpen())
        return 0;
    ReInitializeUserPane();
    SetUIDataToIniData();
    SetCurrentValueToUI();
    runModalForWindow();
    return 0;
}

// The parent panel's own window is no help here: the panel may have moved into another one since
// its controls were made, so that one of its views is asked.
void PopupWinInPanelKRVImageOptions::runModalForWindow() {
    auto *window = qobject_cast<ModalWindow *>(windowRef.data());
    if (!window)
        return;
    QWidget *view = nullptr;
    if (const ControlArray *controls = pParentPane ? pParentPane->getCtrlGroupArrayRef() : nullptr)
        for (size_t i = 0; i < controls->size() && !view; ++i)
            view = (*controls)[i]->GetControlPtr();
    window->runModal(view);
}

int32_t PopupWinInPanelKRVImageOptions::ReleaseWindow() {
    return 0;
}

int32_t PopupWinInPanelKRVImageOptions::DeactivateWindow() {
    endRun();
    return 0;
}

bool PopupWinInPanelKRVImageOptions::isRunning() const {
    return windowRef && windowRef->isVisible();
}

// Without controls no button could end the run.
bool PopupWinInPanelKRVImageOptions::canOpen() const {
    return windowRef && fCtrlGroupArray && !isRunning();
}

void PopupWinInPanelKRVImageOptions::endRun() {
    if (auto *window = qobject_cast<ModalWindow *>(windowRef.data())) {
        window->stopModal();
        window->closeWindow();
    }
}

int32_t PopupWinInPanelKRVImageOptions::InitializeUserPaneTitle(const Bundle *bundle) {
    if (winTitleTextRef.isNull() || !bundle || !windowRef)
        return 0;
    windowRef->setWindowTitle(bundle->localizedString(winTitleTextRef, kNoTranslation));
    return 1;
}

int32_t PopupWinInPanelKRVImageOptions::ReInitializeUserPaneTitle() {
    return InitializeUserPaneTitle(pdeBundleRef);
}

int32_t PopupWinInPanelKRVImageOptions::SycValueFromUI() {
    eachControl([](auto &control) {
        if (control.GetControlPtr())
            control.GetValueFromUI();
    });
    return 0;
}

void PopupWinInPanelKRVImageOptions::RestoreMarkedPPD() {}

QString PopupWinInPanelKRVImageOptions::GetCurrentPrinterString() const {
    return pParentPane ? pParentPane->GetCurrentPrinterString() : QString();
}

void PopupWinInPanelKRVImageOptions::terminate() {
    endRun();
    BasePrintPanelKRVImageOptions::terminate();
}

// Not the field with the focus alone: one that was hidden or disabled during an edit has lost it.
void PopupWinInPanelKRVImageOptions::endPendingEdits() {
    if (windowRef)
        for (TextFieldView *field : windowRef->findChildren<TextFieldView *>())
            field->endEditing();
}

void PopupWinInPanelKRVImageOptions::dropPendingEdits() {
    if (windowRef)
        for (TextFieldView *field : windowRef->findChildren<TextFieldView *>())
            field->dropPendingEdit();
}
