#include "controls/text_entry_family.h"

#include "controls/stepper_family.h"
#include "controls/value_text.h"
#include "platform/bundle.h"
#include "platform/views/alert.h"
#include "platform/views/text_field_view.h"
#include "ppd/text_utils.h"
#include "services/bundle_identity.h"

#include <cstdio>
#include <cstring>

TextEditCtrlKRVImageOptions::~TextEditCtrlKRVImageOptions() {
    const std::shared_ptr<TextFormatter> formatter = m_formatter.lock();
    if (formatter && field() && field()->formatter() == formatter.get())
        field()->setFormatter(nullptr);
}

void TextEditCtrlKRVImageOptions::CreateControl(TextFieldView *view, TextEditIniData *iniData,
                                                const CtrlConstrainInfo *constrain,
                                                const CtrlAccessInfo *access, const QString &user,
                                                const TextEditFilterData *filterData) {
    BaseControlKRVImageOptions::CreateControl(view);
    setRecords(constrain, access, user);
    textEditIniDataPtr = iniData;
    textEditFilterDataPtr = filterData;
}

TextFieldView *TextEditCtrlKRVImageOptions::field() const {
    return qobject_cast<TextFieldView *>(ControlPtr.data());
}

bool TextEditCtrlKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    allocateBlocks(CtrlDataBlk::kTextSize);
    return InitializeCtrlFormat();
}

bool TextEditCtrlKRVImageOptions::ReInitializeCtrl(const Bundle *, ppd_file_t *) {
    return InitializeCtrlFormat();
}

void TextEditCtrlKRVImageOptions::setFormatter(
    std::shared_ptr<TextEditFormatterKRVImageOptions> formatter) {
    m_formatter = formatter;
    if (field())
        field()->setFormatter(std::move(formatter));
}

bool TextEditCtrlKRVImageOptions::InitializeCtrlFormat() {
    if (textEditFilterDataPtr && textEditIniDataPtr) {
        auto formatter = std::make_shared<TextEditFormatterKRVImageOptions>();
        formatter->initWithFilter(textEditFilterDataPtr, textEditIniDataPtr->maxLength);
        setFormatter(std::move(formatter));
    }
    return true;
}

bool TextEditCtrlKRVImageOptions::SetControlValueToUI() {
    if (!ctrlDataBlkPtr)
        return false;
    const QString text = QString::fromUtf8(ctrlDataBlkPtr->text());
    ctrlDataSize = static_cast<uint32_t>(GetStringLength(text));
    if (!field() || !ctrlDataAccessInfoPtr)
        return false;
    field()->setStringValue(text);
    return true;
}

bool TextEditCtrlKRVImageOptions::SetExternalValueToUI(const void *value, uint32_t) {
    if (!field() || !value || !ctrlDataAccessInfoPtr)
        return false;
    field()->setStringValue(QString::fromUtf8(static_cast<const char *>(value)));
    return true;
}

int32_t TextEditCtrlKRVImageOptions::OnRawKeyUp(const char *) {
    return 0;
}

bool TextEditCtrlKRVImageOptions::SetControlValueToDefault() {
    if (!ctrlDataBlkPtr)
        return true;
    ctrlDataBlkPtr->clear();
    ctrlDataSize = GetDefaultDataSize();
    if (const void *text = GetDefaultDataBlk())
        ctrlDataBlkPtr->copyFrom(text, ctrlDataSize);
    return true;
}

int32_t TextEditCtrlKRVImageOptions::GetStringLength(const QString &text) const {
    return text.isNull() ? 0 : ::GetStringLength(text);
}

CtrlDataBlk *TextEditCtrlKRVImageOptions::GetValueFromUI() {
    if (field() && ctrlDataBlkPtr && ctrlUIDataBlkPtr && ctrlDataAccessInfoPtr) {
        const QString text = field()->stringValue();
        const QByteArray utf8 = text.toUtf8();
        ctrlUIDataBlkPtr->copyFrom(utf8.constData(), static_cast<uint32_t>(utf8.size()));
        ctrlDataSize = static_cast<uint32_t>(GetStringLength(text));
    }
    return ctrlUIDataBlkPtr.get();
}

bool TextEditCtrlKRVImageOptions::ConvertToTickectData(char *buffer) {
    if (!ctrlDataBlkPtr || !buffer)
        return false;
    std::memcpy(buffer, ctrlDataBlkPtr->bytes(), kTicketBufferSize - 1);
    return true;
}

const void *TextEditCtrlKRVImageOptions::GetDefaultDataBlk() {
    return textEditIniDataPtr ? textEditIniDataPtr->defaultText : nullptr;
}

uint32_t TextEditCtrlKRVImageOptions::GetDefaultDataSize() {
    return textEditIniDataPtr ? static_cast<uint32_t>(qstrnlen(textEditIniDataPtr->defaultText,
                                                               CtrlDataBlk::kTextSize - 1))
                              : 0;
}

bool TextEditCtrlKRVImageOptions::ConvertFromPreferenceString(const char *text) {
    if (!text || !ctrlDataBlkPtr)
        return false;
    ctrlDataBlkPtr->copyFrom(text, static_cast<uint32_t>(std::strlen(text)));
    ctrlDataSize =
        static_cast<uint32_t>(GetStringLength(QString::fromUtf8(ctrlDataBlkPtr->text())));
    return true;
}

bool TextEditCtrlKRVImageOptions::ConvertToPreferenceString(char *buffer) {
    if (!ctrlDataBlkPtr || !buffer)
        return false;
    std::memcpy(buffer, ctrlDataBlkPtr->text(), std::strlen(ctrlDataBlkPtr->text()) + 1);
    return true;
}

bool TextEditCtrlKRVImageOptions::PreInvalidateData() {
    return true;
}

bool TextEditCtrlKRVImageOptions::isDataValid() const {
    if (!textEditIniDataPtr || ctrlDataSize == 0)
        return true;
    if (ctrlDataSize > textEditIniDataPtr->maxLength ||
        ctrlDataSize < textEditIniDataPtr->minLength)
        return false;
    return !textEditFilterDataPtr || !ctrlUIDataBlkPtr ||
           validateInput(QString::fromUtf8(ctrlUIDataBlkPtr->text()), textEditFilterDataPtr);
}

bool TextEditCtrlKRVImageOptions::InvalidateData() {
    if (isDataValid())
        return true;
    ShowErrMsg();
    return false;
}

bool TextEditCtrlKRVImageOptions::InvalidateDataAndReturnError() {
    return isDataValid();
}

void TextEditCtrlKRVImageOptions::SetValueFromUIToControl() {
    if (!ctrlDataBlkPtr || !ctrlUIDataBlkPtr)
        return;
    ctrlDataBlkPtr->clear();
    if (ctrlDataSize != 0)
        ctrlDataBlkPtr->copyFrom(ctrlUIDataBlkPtr->bytes(), CtrlDataBlk::kTextSize);
}

bool TextEditCtrlKRVImageOptions::CorrectCtrlUI() {
    if (field())
        field()->setStringValue(QString());
    if (ctrlUIDataBlkPtr)
        ctrlUIDataBlkPtr->clear();
    ctrlDataSize = 0;
    return true;
}

void TextEditCtrlKRVImageOptions::ShowErrMsg() {
    const Bundle *bundle = ctrlParentPanelPtr ? ctrlParentPanelPtr->GetPDEBundleRef() : nullptr;
    if (!bundle || !textEditFilterDataPtr || !textEditFilterDataPtr->errorKey)
        return;
    const QString icon = pluginBundle ? pluginBundle->resourcePath(QStringLiteral("AlertIcon"),
                                                                   QStringLiteral("png"))
                                      : QString();
    const QPointer<TextFieldView> view = field(); // the alert runs an event loop
    views::runAlert(view, icon, QString(), localized(bundle, textEditFilterDataPtr->errorKey),
                    localized(bundle, "Alert OK Btn"));
    if (view)
        view->becomeFirstResponder();
}

QString TextEditCtrlKRVImageOptions::GetCorrectedData() {
    return QString();
}

uint32_t GTextEditCtrlKRV::GetEditMaxLength() const {
    return textEditIniDataPtr ? textEditIniDataPtr->maxLength : 0;
}

LittleArrayKRVImageOptions *GTextEditCtrlKRV::GetLittleArrayForNumberEdit() {
    const CtrlConstrainTable *table =
        ctrlConstrainControlArray ? ctrlConstrainControlArray->updateTable : nullptr;
    const CtrlTagList row = table ? table->row(GetCurrentControlArrayNumber()) : nullptr;
    return row && *row && ctrlParentPanelPtr ? dynamic_cast<LittleArrayKRVImageOptions *>(
                                                   ctrlParentPanelPtr->GetPanelControl(*row))
                                             : nullptr;
}

bool GTextEditCtrlKRV::CorrectCtrlUI() {
    if (LittleArrayKRVImageOptions *stepper = GetLittleArrayForNumberEdit()) {
        const CtrlDataBlk *value = stepper->GetValueFromUI();
        if (!value)
            return true;
        std::snprintf(pDisplay.data(), pDisplay.size(), "%d", value->word());
        if (field())
            field()->setStringValue(GetCorrectedData());
    }
    GetValueFromUI();
    return true;
}

QString GTextEditCtrlKRV::GetCorrectedData() {
    return QString::fromLatin1(pDisplay.data());
}

int32_t GTextEditCtrlKRV::Update() {
    const CtrlDataBlk *block = GetValueFromUI();
    if (block && (*block->text() == 0 || std::strcmp(block->text(), "-") == 0)) {
        static constexpr char target[] = "0";
        SetExternalValueToUI(target, sizeof target - 1);
        GetValueFromUI();
    }
    return 0;
}

int32_t GTextEditCtrlKRV::OnRawKeyUp(const char *text) {
    LittleArrayKRVImageOptions *stepper = GetLittleArrayForNumberEdit();
    if (stepper && text) {
        const int32_t number = leadingInteger(QString::fromUtf8(text));
        stepper->SetExternalValueToUI(&number, sizeof number);
    }
    DoControlUpdateConstrain();
    return 0;
}

int32_t GTextEditCtrlKRV::OnLostFocus() {
    Update();
    DoControlUpdateConstrain();
    return 0;
}

void GTextEditCtrlKRV::RequestControlAction() {
    OnLostFocus();
}

bool GTextEditCtrlKRV::InitializeCtrlFormat() {
    if (textEditFilterDataPtr && textEditIniDataPtr) {
        auto formatter = std::make_shared<GTextEditFormatterKRV>();
        formatter->initWithFilter(textEditFilterDataPtr, textEditIniDataPtr->maxLength, this);
        setFormatter(std::move(formatter));
    }
    return true;
}
