#pragma once

#include "controls/control_panel.h"
#include "controls/data_block.h"
#include "controls/records/control_records.h"
#include "ppd/pde_choice.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

/// The preference user of all controls: the person at the screen.
extern const QString kControlUserCurrent;

/// The root of every control: one view, its records, and the value on its way from the screen to
/// the job.
///
/// A value stands in up to four places: the view; the UI block, the value for which constraints
/// were last applied; the data block, the committed value that is restored, summarised and sent;
/// and for a control that is bound to a PPD option the mark. The UI block is written after the
/// constraint walks (a list writes it in the last one), never before, since they compare the view
/// with it to see what changed.
///
/// A control is owned by its panel's registry. Views, records, PPD and panel are borrowed. Every
/// operation tolerates a missing view, block, record or panel with the result documented below.
class BaseControlKRVImageOptions {
public:
    BaseControlKRVImageOptions();
    virtual ~BaseControlKRVImageOptions();
    BaseControlKRVImageOptions(const BaseControlKRVImageOptions &) = delete;
    BaseControlKRVImageOptions &operator=(const BaseControlKRVImageOptions &) = delete;

    /// Starts a control on a view, which may be null: such a control is dropped at registration.
    void CreateControl(QWidget *view);
    void SetControlPtr(QWidget *view);
    virtual void SetParenetPanel(ControlPanel *panel);

    /// The panel is about to be shown. @return 0
    virtual int32_t Open();
    /// @return 0
    virtual int32_t Close();
    /// Makes the view's action call RequestControlAction.
    virtual void setTargetandAction();
    /// Takes the control's texts and start state from bundle and PPD, and allocates the blocks.
    /// The control takes its panel's strings table. @return false if the control stays unusable
    virtual bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd);
    virtual bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd);
    virtual int32_t ConstrainPanelControlFromPPD(ppd_file_t *ppd);
    virtual int32_t UpdateConflictsPanelControlFromPPD(ppd_file_t *ppd);

    /// UI block := view. @return the UI block, or null when there is nothing to read
    virtual CtrlDataBlk *GetValueFromUI();
    /// Data block := the stored value: print settings or PPD mark. @return false without one
    virtual bool GetValueToPreset();
    /// @return the data block, or null for a control without a value
    virtual CtrlDataBlk *GetValueFromControl();
    virtual bool InvalidateData();
    virtual bool InvalidateDataAndReturnError();
    virtual bool InvalidateDataOnCancel();
    virtual bool PreInvalidateData();
    virtual bool PreInvalidateDataOnCancel();
    virtual bool InvalidateDataOnPrintCommand();
    /// Data block := UI block.
    virtual void SetValueFromUIToControl();
    /// View := data block. @return false where there is nothing to show or nowhere to show it
    virtual bool SetControlValueToUI();
    /// UI block := the record's iniValue. @return true
    virtual bool SetUIValueToIniData();
    /// Data block := the record's default. @return true
    virtual bool SetControlValueToDefault();

    // The value as text. The preference buffer holds 255 bytes, the ticket buffer 256.
    static constexpr int kPreferenceBufferSize = 255;
    static constexpr int kTicketBufferSize = 256;
    virtual bool ConvertToPreferenceString(char *buffer);
    virtual bool ConvertFromPreferenceString(const char *text);
    virtual bool ConvertToTickectData(char *buffer);

    /// Preferences, kept for each printer. A control without a key succeeds untouched.
    virtual bool SetValueToPreference();
    virtual bool GetValueFromPreference();
    virtual bool SetValueToPreferenceWithPrinterSettings();
    virtual bool GetValueFromPreferenceWithPrinterSettings();

    /// Encrypts if a view of the array has this view's tag.
    bool SetValueToTicketEncryptArray(PMPrintSettings settings, bool withParam,
                                      const QList<QWidget *> &encryptArray);
    bool SetValueToTicketWithVLTEnc(PMPrintSettings settings, bool withParam);
    /// Writes the value under the record's ticket key, escaped where it has special characters; a
    /// PPD-bound control tells the host its choice instead.
    /// @param withParam  the lock flag of the entry
    /// @return false without a key or when the write fails
    virtual bool SetValueToTicket(PMPrintSettings settings, bool withParam);

    /// Adds one row to the summary. Null arguments add nothing. @return 0
    virtual int32_t GetSummaryText(QVariantMap *summary, QStringList *orderArray);

    /// A person has acted on the view: the constraint steps run. @return true
    virtual bool UIEventHandler();
    /// The same steps for a value that the program put into the view. @return true
    virtual bool SimulationUIEventHandler();
    virtual int32_t DoControlUpdateConstrain();
    virtual int32_t DoSelfUpdate();
    virtual int32_t DoControlHideConstrain();
    virtual int32_t DoControlConstrain();

    // Walks over one row of a table; a null row or a tag without a control does nothing.
    void HideControlConstrains(CtrlTagList tags);
    void ShowControlConstrains(CtrlTagList tags);
    void DisableControlConstrains(CtrlTagList tags);
    void EnableControlConstrains(CtrlTagList tags);
    // The same on the row of the control's current value.
    void HideControlConstrains();
    void ShowControlConstrains();
    void DisableControlConstrains();
    void EnableControlConstrains();

    virtual bool SetControlData(const void *value);
    /// View := a value that isn't the control's data.
    /// @param value  an int32_t for integer controls, UTF-8 ended by zero for texts
    /// @param size   its size in bytes
    virtual bool SetExternalValueToUI(const void *value, uint32_t size);
    /// Data block := a value. @param valueType  kValueTypeText or kValueTypeInteger; any other does
    /// nothing. @return true
    virtual bool setExternalValueToData(const void *value, uint32_t size, int32_t valueType);
    /// View := the record's default; the data block stays. @return true
    virtual bool SetDefaultValueToUI();

    // The record's default and its mark for "no old value"; null without a record. The size is that
    // of the family's values, 0 for a control without.
    virtual const void *GetDefaultDataBlk();
    virtual uint32_t GetDefaultDataSize();
    virtual const void *GetIniDataBlk();
    virtual uint32_t GetIniDataSize();

    CtrlDataBlk *GetControlBlkPtr() const { return ctrlDataBlkPtr.get(); }
    CtrlDataBlk *GetValueFromUIDataBlk() const { return ctrlUIDataBlkPtr.get(); }
    void setDataBlkSize(uint32_t size) { ctrlDataSize = size; }
    uint32_t GetDataBlkSize() const { return ctrlDataSize; }

    // Being held down: each call counts, so that several sources can hold one control. The counts
    // aren't clamped; the view follows at the moment of a change alone. @return 0
    virtual int32_t Enable();
    virtual int32_t Disable();
    virtual int32_t Show();
    virtual int32_t Hide();
    /// Removal by product, past the counts.
    virtual void PPDCtrlShow();
    virtual void PPDCtrlHide();
    /// Both counts to 0, the view enabled and shown.
    virtual int32_t ResetStatus();
    /// Gives up what the counts hold, and nothing else: a view that its form hides stays hidden.
    virtual void releaseHolds();
    /// A control that this one depends on has changed. @return 0
    virtual int32_t Update();
    /// The index of the control's value in its tables.
    virtual int32_t GetCurrentControlArrayNumber();
    virtual bool IsOutputNullToTicket();
    /// The view's action: UIEventHandler, then GetValueFromUI.
    virtual void RequestControlAction();

    QWidget *GetControlPtr() const { return ControlPtr; }
    /// @return the view's tag, read when it is first asked for; 0 without a view or a tag
    int viewTag() const;
    PDEChoiceArray *getPPDChoices() const { return m_paPPDChoices.get(); }
    void setPPDChoices(std::unique_ptr<PDEChoiceArray> choices) {
        m_paPPDChoices = std::move(choices);
    }
    ppd_option_t *getPPDOptions() const { return m_ptPPDOptions; }
    void setPPDOptions(ppd_option_t *option) { m_ptPPDOptions = option; }

    int32_t constrainCount() const { return ctrlConstrainCount; }
    int32_t hideCount() const { return ctrlHideCount; }
    bool valueChanged() const { return valueDidChange; }

protected:
    /// Records and user, as every creation operation takes them.
    void setRecords(const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                    const QString &user);
    /// Two fresh blocks of zeros.
    void allocateBlocks(uint32_t size);
    /// The localised text of a key; kNoTranslation when the key or the table is missing.
    QString localized(const Bundle *bundle, const char *key) const;
    /// The value of the record's ticket key in the current print settings, as a number.
    /// @return nothing without panel, settings, key or value
    std::optional<int32_t> presetNumber() const;
    /// Tells the host a choice of this option. @return the host's answer; false without host or key
    bool tellHost(const char *option, const QString &choice) const;
    /// m_ptPPDOptions and m_paPPDChoices for a keyword.
    void bindOption(ppd_file_t *ppd, const char *key);

    QPointer<QWidget> ControlPtr;
    mutable std::optional<int> m_viewTag; ///< of ControlPtr, once it was asked for
    int32_t ctrlInWhichGroup = -1;
    ControlPanel *ctrlParentPanelPtr = nullptr;
    uint32_t ctrlDataSize = 0;
    std::unique_ptr<CtrlDataBlk> ctrlDataBlkPtr;
    std::unique_ptr<CtrlDataBlk> ctrlUIDataBlkPtr;
    int32_t ctrlConstrainCount = 0;
    int32_t ctrlHideCount = 0;
    const CtrlConstrainInfo *ctrlConstrainControlArray = nullptr;
    const CtrlAccessInfo *ctrlDataAccessInfoPtr = nullptr;
    QString userNameinPreference;
    std::unique_ptr<PDEChoiceArray> m_paPPDChoices;
    ppd_option_t *m_ptPPDOptions = nullptr;
    QString LocalizeTableName;
    bool valueDidChange = false;

private:
    bool runConstraintSteps();
    QString preferenceStoreKey() const;
    /// What both preference writes, and both reads, do before and behind the store.
    bool writePreference(const std::function<bool(const QString &, const QString &)> &store);
    bool readPreference(const std::function<bool(const QString &, QString *)> &fetch);
    bool writeTicketText(const char *text, PMPrintSettings settings, bool locked);
    void forEachControl(CtrlTagList tags, int32_t (BaseControlKRVImageOptions::*call)());
};
