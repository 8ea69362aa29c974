#pragma once

#include "controls/base_control.h"
#include "controls/control_panel.h"
#include "ppd/constraint_table.h"

#include <QPointer>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class PDEPluginCallback;

/// The base of everything that owns controls: the main panel and each child window.
///
/// A panel holds no value. It keeps its controls and child windows in the order of registration and
/// turns each operation into a sweep: the same call on each control, then on each child window,
/// which sweeps its own controls. The walk over windows ends at the first reply other than success;
/// the sweep's own result is 0 all the same, but for the two preference writes.
///
/// Before CreatePanel there is nothing to sweep, and every operation answers as for an empty panel.
/// The panel owns its controls; windows, PPD, settings and session are borrowed; the host object is
/// retained from initWithCallback on.
class BasePrintPanelKRVImageOptions : public ControlPanel {
public:
    BasePrintPanelKRVImageOptions();
    ~BasePrintPanelKRVImageOptions() override; // gives up the controls
    BasePrintPanelKRVImageOptions(const BasePrintPanelKRVImageOptions &) = delete;
    BasePrintPanelKRVImageOptions &operator=(const BasePrintPanelKRVImageOptions &) = delete;

    /// Gives up the registries. Sweeps then find nothing, and the destructor is safe.
    virtual void terminate();
    virtual void willShow();
    /// @return true
    virtual bool shouldHide();
    /// Makes the registries. The first step of a panel's life.
    /// @param window  where the panel's views live, may be null
    virtual void CreatePanel(QWidget *window);
    virtual int32_t Open();
    virtual int32_t Close();
    /// The rows of the summary, in the order of the sweep.
    virtual int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray);
    void SetPanelControlPtr(QWidget *window);
    void initWithCallback(const std::shared_ptr<PDEPluginCallback> &host);
    /// Controls, their actions, child windows, in this order. @return 0
    virtual int32_t InitializeUserPane(const Bundle *bundle, ppd_file_t *ppd);
    virtual int32_t InitializeUserPaneControl(const Bundle *bundle, ppd_file_t *ppd);
    virtual int32_t InitilaizeChildWindow(const Bundle *bundle, ppd_file_t *ppd);
    virtual int32_t SetControlEventHandler();
    /// Sweeps the controls that depend on installable options.
    virtual int32_t ConstrainPanelControlFromPPD(ppd_file_t *ppd);
    /// Sweeps this panel's controls alone.
    int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd) override;

    void SetCurrentPrintSession(PMPrintSession session) { currentPrintSession = session; }
    /// Null in a running dialog: nothing stores the session. Restore Default leaves the conflict
    /// pass out for that reason.
    PMPrintSession GetCurrentPrintSession() const { return currentPrintSession; }
    QString GetCurrentPrinterString() const override { return currentPrintString; }
    /// Stores the session and takes the printer's identifier from it, here and in each window.
    /// @return false at the first failure
    virtual bool SetCurrentPrinterString(PMPrintSession session);
    /// Stores settings, PPD and host object and takes the printer's identifier from the session,
    /// here and in each window. @return false at the first failure, with what was stored before it
    virtual bool SetCurrentPrintSettings(PMPrintSettings settings, ppd_file_t *ppd,
                                         PDEPluginCallback *callback, PMPrintSession session);
    BaseControlKRVImageOptions *GetPanelControl(CtrlTag tag) override;

    /// Takes a control. One without a view is given up at once; the caller's pointer to it is then
    /// dead (see adopt).
    /// @return the number of controls before it
    int32_t RunTimeAddNewControl(std::unique_ptr<BaseControlKRVImageOptions> control);
    /// The same without the test of the view, in the list of installable controls.
    int32_t RunTimeAddNewInstallableControl(std::unique_ptr<BaseControlKRVImageOptions> control);
    /// Registers a child window, which the caller owns. It leaves a former parent, and leaves this
    /// one when it is destroyed. @return the number of windows before it
    int32_t RunTimeAddNewWindow(BasePrintPanelKRVImageOptions *window);

    virtual int32_t SetUIDataToIniData();
    /// Each control shows its default and runs its event before the next; windows keep their
    /// values.
    virtual int32_t SetDefaultValueToUI();
    virtual int32_t GetValueFromPreference();
    virtual int32_t GetValueFromPreferenceWithPrinterSettings();
    /// @return 0 if the last control succeeded, else 1; with windows the reply of the last one
    /// asked
    virtual int32_t SetValueToPreference();
    virtual int32_t SetValueToPreferenceWithPrinterSettings();
    /// @param encryptArray  null: as SetValueToTicket for the controls
    virtual int32_t SetValueToTicketEncryptArray(PMPrintSettings settings, bool withParam,
                                                 const QList<QWidget *> *encryptArray);
    /// @param withParam  the lock flag of the entries
    virtual int32_t SetValueToTicket(PMPrintSettings settings, bool withParam);
    virtual int32_t ReInitializeUserPaneControl(const Bundle *bundle, ppd_file_t *ppd);
    /// Every control shows its value; then every control runs its simulated event.
    virtual int32_t SetCurrentValueToUI();
    virtual int32_t SetValueFromUIToControl();
    void SetParenetPane(BasePrintPanelKRVImageOptions *parent) { pParentPane = parent; }
    BasePrintPanelKRVImageOptions *GetParentWnd() const override { return pParentPane; }
    virtual void *GetPrinterSupporttedListRef() const { return nullptr; }
    ppd_file_t *GetPPDRefFromCurrentPrintSession() const;
    /// What constraints hold down is let go, here and in each window; the counts are 0 then.
    void releaseHolds();
    /// Each control takes its stored value, or its default. @return true
    virtual bool GetValueFromPreset();
    virtual int32_t ResetControlStatus();
    virtual int32_t ResetCurrentControlStatus();
    virtual QWidget *GetErrMsgPanel() const { return nullptr; }

    const hash_multimap *Getxppd() const override { return xppd.get(); }
    const std::shared_ptr<hash_multimap> &xppdPtr() const { return xppd; }
    /// Stores the table, here and in each window registered at that moment.
    virtual void SetxppdPtr(const std::shared_ptr<hash_multimap> &table);
    /// Stores two preference dictionaries, here and in each window.
    virtual void setPreferDictionary(const std::shared_ptr<QVariantMap> &user,
                                     const std::shared_ptr<QVariantMap> &anyUser);
    const Bundle *GetPDEBundleRef() const override { return pdeBundleRef; }
    QString localizeTableName() const override { return LocalizeTableName; }
    QStringList *getGroupNameStrArrayRef() { return &AllGroupNameStrArray; }
    using ControlArray = std::vector<std::unique_ptr<BaseControlKRVImageOptions>>;
    /// @return null before CreatePanel and after terminate
    ControlArray *getCtrlGroupArrayRef() { return fCtrlGroupArray ? &*fCtrlGroupArray : nullptr; }
    void SetCurrentPMPrintSettings(PMPrintSettings settings) { m_pSettings = settings; }
    PMPrintSettings GetCurrentPMPrintSettings() const override { return m_pSettings; }
    void SetCurrentPPD(ppd_file_t *ppd) { m_ptCurrentPPD = ppd; }
    ppd_file_t *GetCurrentPPD() const override { return m_ptCurrentPPD; }
    /// Takes no reference of its own.
    void SetCurrentPDECallbackObj(PDEPluginCallback *callback) { m_pPDECallbackObj = callback; }
    PDEPluginCallback *GetCurrentPDECallbackObj() const override { return m_pPDECallbackObj; }
    QVariantMap *getPreferenceDictionaryRef() const { return preferenceDictionaryRef.get(); }
    QVariantMap *getPreferenceDictionaryAnyUserRef() const {
        return preferenceDictionaryAnyUserRef.get();
    }

    /// Registers a control and keeps the panel's field for it right: null for a dropped one, and
    /// null again once the registries are given up.
    template <class Control>
    void adopt(Control *&field, std::unique_ptr<Control> control) {
        field = control && control->GetControlPtr() && fCtrlGroupArray ? control.get() : nullptr;
        m_fields.push_back([&field] { field = nullptr; });
        RunTimeAddNewControl(std::move(control));
    }

protected:
    QString thePDEName;
    QString currentPrintString;
    std::optional<ControlArray> fCtrlGroupArray;
    std::optional<ControlArray> fCtrlInstallableGroupArray;
    std::optional<std::vector<BasePrintPanelKRVImageOptions *>> fWindowGroupArray;
    QStringList AllGroupNameStrArray;
    QStringList GeneralGroupOptionArray;
    std::shared_ptr<QVariantMap> preferenceDictionaryRef;
    std::shared_ptr<QVariantMap> preferenceDictionaryAnyUserRef;
    BasePrintPanelKRVImageOptions *pParentPane = nullptr;
    QPointer<QWidget> windowRef;
    const Bundle *pdeBundleRef = nullptr;
    int32_t _control_num_item = 0;
    int32_t _installableControl_num_item = 0;
    int32_t _parentPane_num_item = 0;
    PMPrintSession currentPrintSession = nullptr;
    std::shared_ptr<hash_multimap> xppd;
    bool isRegistPrintEvent = false;
    PMPrintSettings m_pSettings = nullptr;
    ppd_file_t *m_ptCurrentPPD = nullptr;
    PDEPluginCallback *m_pPDECallbackObj = nullptr;
    QString LocalizeTableName;

    /// The strings table that the PPD names; the one in use stays if it names none.
    void takeLocalizeTable(ppd_file_t *ppd);

    /// The reference that initWithCallback took.
    std::shared_ptr<PDEPluginCallback> m_retainedCallback;

    /// Calls something on every control, in order.
    template <class Call>
    void eachControl(Call call) {
        for (size_t i = 0; fCtrlGroupArray && i < fCtrlGroupArray->size(); ++i)
            if (BaseControlKRVImageOptions *control = (*fCtrlGroupArray)[i].get())
                call(*control);
    }
    /// Asks every window, in order, up to the first reply that isn't `success`.
    /// @return the last reply, or `success` without windows
    template <class Reply, class Call>
    Reply eachWindow(Reply success, Call call) {
        Reply reply = success;
        for (size_t i = 0; fWindowGroupArray && i < fWindowGroupArray->size() && reply == success;
             ++i)
            reply = call(*(*fWindowGroupArray)[i]);
        return reply;
    }

private:
    /// Each clears one pointer of the panel to a control that the registry owns.
    std::vector<std::function<void()>> m_fields;
    void clearFields();
    /// Whose registry holds this window. The parent may be another, which SetParenetPane named.
    BasePrintPanelKRVImageOptions *m_registeredWith = nullptr;
    /// The registry, if any, forgets this window, and this window its parent.
    void leaveParent();
    /// Ends the modal run of a window, which a panel hasn't.
    virtual void endRun() {}
    /// The windows are forgotten, and forget this parent; a run that is on ends.
    void releaseWindows();
    bool takePrinterString(PMPrintSession session);
    int32_t preferenceResult(bool last, int32_t windowReply) const;
};
