// The main panel's life: what each call of the host does.

#include "plugin/image_options_pde.h"

#include "controls/button_family.h"
#include "controls/radio_family.h"
#include "imagewindows/color_balance_window.h"
#include "imagewindows/image_adjustment_window.h"
#include "platform/bundle.h"
#include "platform/log.h"
#include "platform/pde/pde_plugin_callback.h"
#include "ppd/constraint_cache.h"
#include "ppd/panel_options.h"
#include "services/bundle_identity.h"
#include "services/help.h"

ImageOptionsPDEk27::ImageOptionsPDEk27()
    : colorBalanceWndPtr(std::make_unique<ColorBalanceWndKRV>()),
      imageAdjustmentWndPtr(std::make_unique<ImageAdjustmentWndKRV>()),
      imageAdjustmentBlackOverWndPtr(std::make_unique<ImageAdjustmentBlackOverWndKRV>()),
      imageAdjustmentInvalidateColorProfileWndPtr(
          std::make_unique<ImageAdjustmentInvalidateColorProfileWndKRV>()) {}

ImageOptionsPDEk27::~ImageOptionsPDEk27() {
    BasePrintPanelKRVImageOptions::terminate(); // the controls let go of their views first
    delete ImageOptionsView;
}

ppd_file_t *ImageOptionsPDEk27::hostPPD() const {
    return m_pPDECallbackObj ? m_pPDECallbackObj->ppdFile() : nullptr;
}

void ImageOptionsPDEk27::loadLayout() {
    if (ImageOptionsView || !pluginBundle)
        return;
    const QString layout = QString::fromUtf8(getPDENibFileNamePrintType());
    QString error = QStringLiteral("the bundle has no such layout");
    if (const QString path = pluginBundle->resourcePath(layout, QStringLiteral("nib"));
        !path.isNull())
        ImageOptionsView = views::loadForm(path, outlets(), &error);
    if (!ImageOptionsView)
        qCWarning(panelLog, "%s: %s", qUtf8Printable(layout), qUtf8Printable(error));
    else if (fCtrlGroupArray)
        bFirstInitialzePDE =
            true; // controls without their views, or of a view that the host destroyed
}

QWidget *ImageOptionsPDEk27::panelView() {
    loadLayout();
    return ImageOptionsView;
}

QString ImageOptionsPDEk27::panelName() {
    takeLocalizeTable(hostPPD());
    if (thePDEName.isNull()) {
        thePDEName = pluginBundle ? pluginBundle->localizedString(QStringLiteral("Graphics Title"),
                                                                  kNoTranslation, LocalizeTableName)
                                  : kNoTranslation;
    }
    return thePDEName;
}

QString ImageOptionsPDEk27::panelKind() {
    return QStringLiteral("com.velmora.k27.pde.ImageOptionsKind");
}

void ImageOptionsPDEk27::buildConstraintTable(ppd_file_t *ppd) {
    xppd = makeConstraintTable(ppd);
    m_tablePPD = ppd;
}

QStringList ImageOptionsPDEk27::supportedPPDOptionKeys() {
    if (ppd_file_t *ppd = hostPPD())
        buildConstraintTable(ppd);
    QStringList keys;
    for (const char *key : kPanelOptionKeys)
        keys.append(QString::fromUtf8(key));
    return keys;
}

bool ImageOptionsPDEk27::SimulationOpenPDE() {
    ppd_file_t *ppd = hostPPD();
    if (!ppd)
        return true;
    loadLayout();
    int32_t helpStatus = 0;
    if (bFirstInitialzePDE) {
        CreatePanel(ImageOptionsView ? ImageOptionsView->window() : nullptr);
        helpStatus = RegisterMyHelpBook();
        if (m_tablePPD && m_tablePPD != ppd)
            buildConstraintTable(ppd);
        SetxppdPtr(xppdPtr());
        takeLocalizeTable(ppd);
        InitializeUserPane(pluginBundle.get(), ppd);
        m_boundPPD = ppd;
    } else if (ppd != m_boundPPD) {
        resolveAgain(ppd);
    }
    PDEPluginCallback *host = m_pPDECallbackObj;
    SetCurrentPrintSettings(host->printSettings(), host->ppdFile(), host, host->printSession());
    if (bFirstInitialzePDE)
        SetUIDataToIniData();
    GetValueFromPreset();
    SetCurrentValueToUI();
    if (!bFirstInitialzePDE)
        UpdateConflictsPanelControlFromPPD(ppd);
    bFirstInitialzePDE = false;
    views::assignMnemonics(ImageOptionsView);
    return helpStatus == 0;
}

void ImageOptionsPDEk27::resolveAgain(ppd_file_t *ppd) {
    if (m_tablePPD != ppd)
        buildConstraintTable(ppd);
    SetxppdPtr(xppdPtr());
    LocalizeTableName = QString();
    thePDEName = QString();
    takeLocalizeTable(ppd);
    m_records = MainPanelRecords{};
    releaseHolds();
    InitializeUserPane(pluginBundle.get(), ppd);
    SetUIDataToIniData();
    m_boundPPD = ppd;
}

bool ImageOptionsPDEk27::restoreValuesAndReturnError(PDEError *) {
    gPDESyncSetUI = true;
    const bool restored = SimulationOpenPDE();
    gPDESyncSetUI = false;
    return restored;
}

void ImageOptionsPDEk27::willShow() {
    gPDESyncSetUI = true;
    Open();
    gPDESyncSetUI = false;
    BasePrintPanelKRVImageOptions::willShow();
}

bool ImageOptionsPDEk27::shouldHide() {
    return BasePrintPanelKRVImageOptions::shouldHide();
}

int32_t ImageOptionsPDEk27::Open() {
    isPrintTypeSavetoMailbox = IsJobTypeMailbox();
    return BasePrintPanelKRVImageOptions::Open();
}

bool ImageOptionsPDEk27::shouldPrint() {
    if (bFirstInitialzePDE)
        SimulationOpenPDE();
    gbIsPrint = true;
    if (ImageOptionsView)
        SetValueFromUIToControl();
    SetValueToTicket(m_pSettings, false);
    isShouldPrintCalled = true;
    return true;
}

bool ImageOptionsPDEk27::saveValuesAndReturnError(PDEError *) {
    gbIsPrint = true;
    if (ImageOptionsView)
        SetValueFromUIToControl();
    const bool saved = isShouldPrintCalled || SetValueToTicket(m_pSettings, false) == 0;
    isShouldPrintCalled = false;
    return saved;
}

int32_t ImageOptionsPDEk27::SetValueFromUIToControl() {
    isPrintTypeSavetoMailbox = IsJobTypeMailbox();
    return BasePrintPanelKRVImageOptions::SetValueFromUIToControl();
}

int32_t ImageOptionsPDEk27::GetSummaryText(QVariantMap *summary, QStringList *orderArray) {
    isPrintTypeSavetoMailbox = IsJobTypeMailbox();
    return BasePrintPanelKRVImageOptions::GetSummaryText(summary, orderArray);
}

QVariantMap ImageOptionsPDEk27::summaryInfo() {
    QVariantMap summary;
    QStringList order;
    GetSummaryText(&summary, &order);
    summary.insert(QStringLiteral("Summary Display Order"), order);
    return summary;
}

bool ImageOptionsPDEk27::shouldShowHelp() {
    return !helpButtonCtrl || !helpButtonCtrl->UIEventHandler();
}

// Changes of other panels arrive at the next willShow or restore, from the marks themselves.
void ImageOptionsPDEk27::PPDOptionKeyValueDidChange(const QString &, const QString &) {}

void ImageOptionsPDEk27::terminate() {
    BasePrintPanelKRVImageOptions::terminate();
}

void ImageOptionsPDEk27::setPDEType(int32_t type) {
    pdeType = 0;
    if (static_cast<uint32_t>(type) < kProductInfo.size())
        pdeType = type;
}

const char *ImageOptionsPDEk27::getPDENibFileNamePrintType() const {
    return getProductInfoPtr()[pdeType].nib;
}
