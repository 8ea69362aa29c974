#pragma once

#include "controls/base_control.h"
#include "controls/text_entry_formatter.h"

#include <array>
#include <memory>

class LittleArrayKRVImageOptions;
class TextFieldView;

/// A text field with length limits and a character filter.
///
/// Value: UTF-8 ended by zero in 256-byte blocks; `ctrlDataSize` is the length of the current text
/// in characters, as GetStringLength counts, and 0 for an empty text, which nothing validates. A
/// field without CtrlAccessInfo is neither read nor written.
class TextEditCtrlKRVImageOptions : public BaseControlKRVImageOptions {
public:
    ~TextEditCtrlKRVImageOptions() override; // takes the formatter off the field

    /// @param view        the field, may be null
    /// @param iniData     texts and limits, borrowed for the control's life; may be null
    /// @param filterData  what may be typed, and the message on refusal; may be null
    void CreateControl(TextFieldView *view, TextEditIniData *iniData,
                       const CtrlConstrainInfo *constrain, const CtrlAccessInfo *access,
                       const QString &user, const TextEditFilterData *filterData);

    /// Fresh blocks, then InitializeCtrlFormat.
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// InitializeCtrlFormat alone: the text stays.
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// Gives the field its formatter, with a filter and a record. @return true
    virtual bool InitializeCtrlFormat();
    bool SetControlValueToUI() override;
    /// View := UTF-8 text, ended by zero. @return false without view, text or CtrlAccessInfo
    bool SetExternalValueToUI(const void *value, uint32_t size) override;
    /// @param text  an entry, UTF-8. @return 0
    virtual int32_t OnRawKeyUp(const char *text);
    bool SetControlValueToDefault() override;
    /// @return the text's length in characters; 0 for null
    int32_t GetStringLength(const QString &text) const;
    /// UI block := the field's text, at most 255 bytes of it. @return the UI block, also of a field
    ///         that isn't read; null before there is one
    CtrlDataBlk *GetValueFromUI() override;
    bool ConvertToTickectData(char *buffer) override;
    const void *GetDefaultDataBlk() override;
    uint32_t GetDefaultDataSize() override;
    bool ConvertFromPreferenceString(const char *text) override;
    /// @param buffer  takes the whole text: up to 255 bytes and a zero
    bool ConvertToPreferenceString(char *buffer) override;
    bool PreInvalidateData() override;
    /// Checks the text last read: length and characters. An empty one passes. A refusal shows the
    /// message and leaves the focus in the field.
    bool InvalidateData() override;
    /// The same without the message.
    bool InvalidateDataAndReturnError() override;
    void SetValueFromUIToControl() override;
    /// Empties the field. @return true
    virtual bool CorrectCtrlUI();
    /// Shows the filter's message and waits for its button, then gives the field the focus. Nothing
    /// without a message or a bundle.
    virtual void ShowErrMsg();
    /// @return the text that stands in for a refused one; null for none
    virtual QString GetCorrectedData();
    char *GetUIData() { return uiData.data(); }

protected:
    TextFieldView *field() const;
    void setFormatter(std::shared_ptr<TextEditFormatterKRVImageOptions> formatter);
    bool isDataValid() const;

    TextEditIniData *textEditIniDataPtr = nullptr;
    const TextEditFilterData *textEditFilterDataPtr = nullptr;
    std::array<char, CtrlDataBlk::kTextSize> uiData{}; ///< of the caller's use

private:
    std::weak_ptr<TextFormatter> m_formatter; ///< the field owns it
};

/// The number field beside a stepper. A person's entry moves the stepper, and the stepper's event
/// writes the field, so that both show one number.
class GTextEditCtrlKRV : public TextEditCtrlKRVImageOptions {
public:
    /// @return the greatest length of the text; 0 without a record
    uint32_t GetEditMaxLength() const;
    /// View := the stepper's number, and the field is read. @return true
    bool CorrectCtrlUI() override;
    /// @return the number that CorrectCtrlUI put in
    QString GetCorrectedData() override;
    /// Reads the field; a bare sign or nothing becomes "0". @return 0
    int32_t Update() override;
    /// Stepper := the number at the text's start, 0 without one; then the update row. @return 0
    int32_t OnRawKeyUp(const char *text) override;
    /// Update, then the update row. @return 0
    int32_t OnLostFocus();
    /// @return the stepper, the first tag of the update row; null when a link is missing
    LittleArrayKRVImageOptions *GetLittleArrayForNumberEdit();
    /// Editing has ended: OnLostFocus.
    void RequestControlAction() override;
    bool InitializeCtrlFormat() override;

protected:
    std::array<char, 24> pDisplay{};      ///< the corrected text
    std::array<char, 24> pDefaultValue{}; ///< stays empty
};
