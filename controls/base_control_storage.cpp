// A control's value in preferences and print settings.

#include "controls/base_control.h"
#include "platform/preferences.h"
#include "platform/utf8.h"
#include "platform/views/view.h"
#include "ppd/print_session.h"
#include "ppd/text_utils.h"
#include "services/identity.h"
#include "services/system_version.h"
#include "services/ticket_encoder.h"

#include <array>
#include <cstring>

namespace {

bool needsEscape(const char *text) {
    return text[0] == '/' || std::strpbrk(text, "',\\") != nullptr;
}

/// Each byte as "/" and its decimal number; 255 bytes take at most 1,020.
std::string escaped(const char *text) {
    std::string result;
    std::array<char, 12> digits;
    for (; *text; ++text) {
        result += '/';
        result += itoa(static_cast<unsigned char>(*text), digits.data(), digits.size());
    }
    return result;
}

} // namespace

bool BaseControlKRVImageOptions::ConvertToPreferenceString(char *) {
    return true;
}
bool BaseControlKRVImageOptions::ConvertFromPreferenceString(const char *) {
    return true;
}
bool BaseControlKRVImageOptions::ConvertToTickectData(char *) {
    return true;
}

QString BaseControlKRVImageOptions::preferenceStoreKey() const {
    QString key = QLatin1String("");
    if (!ctrlParentPanelPtr ||
        !CreateKeyWithCurrentPrinter(QString::fromUtf8(ctrlDataAccessInfoPtr->preferenceKey),
                                     ctrlParentPanelPtr->GetCurrentPrinterString(), &key))
        return QString();
    return key;
}

bool BaseControlKRVImageOptions::SetValueToPreference() {
    return writePreference([this](const QString &key, const QString &value) {
        if (systemVersion() >= kSystemVersion1070)
            return true;
        using namespace preferences;
        CFPreferencesSetValue(key, value, kCFPreferencesAnyApplication, userNameinPreference,
                              kCFPreferencesCurrentHost);
        return CFPreferencesSynchronize(kCFPreferencesAnyApplication, userNameinPreference,
                                        kCFPreferencesCurrentHost);
    });
}

bool BaseControlKRVImageOptions::SetValueToPreferenceWithPrinterSettings() {
    return writePreference([this](const QString &key, const QString &value) {
        PMPrintSettings settings = ctrlParentPanelPtr->GetCurrentPMPrintSettings();
        return !settings || PMPrintSettingsSetValue(settings, key, value, false) == kPMNoError;
    });
}

bool BaseControlKRVImageOptions::GetValueFromPreference() {
    return readPreference([this](const QString &key, QString *value) {
        if (systemVersion() >= kSystemVersion1070)
            return false;
        using namespace preferences;
        *value = CFPreferencesCopyValue(key, kCFPreferencesAnyApplication, userNameinPreference,
                                        kCFPreferencesCurrentHost);
        return !value->isNull();
    });
}

bool BaseControlKRVImageOptions::GetValueFromPreferenceWithPrinterSettings() {
    return readPreference([this](const QString &key, QString *value) {
        return PMPrintSettingsGetValue(ctrlParentPanelPtr->GetCurrentPMPrintSettings(), key,
                                       value) == kPMNoError;
    });
}

bool BaseControlKRVImageOptions::writePreference(
    const std::function<bool(const QString &, const QString &)> &store) {
    if (!ctrlDataAccessInfoPtr || !ctrlDataAccessInfoPtr->preferenceKey)
        return true;
    if (!ctrlDataBlkPtr)
        return false;
    if (userNameinPreference != kControlUserCurrent && !IsUserAdmin())
        return true;
    std::array<char, kPreferenceBufferSize + 1> buffer{};
    if (!ConvertToPreferenceString(buffer.data()))
        return false;
    const QString key = preferenceStoreKey();
    const std::optional<QString> text = strictUtf8(buffer.data());
    return !key.isNull() && text && store(key, *text);
}

bool BaseControlKRVImageOptions::readPreference(
    const std::function<bool(const QString &, QString *)> &fetch) {
    if (!ctrlDataAccessInfoPtr || !ctrlDataAccessInfoPtr->preferenceKey)
        return true;
    if (!ctrlDataBlkPtr)
        return false;
    const QString key = preferenceStoreKey();
    QString value;
    if (key.isNull() || !fetch(key, &value))
        return false;
    return ConvertFromPreferenceString(value.toUtf8().left(kPreferenceBufferSize).constData());
}

bool BaseControlKRVImageOptions::SetValueToTicketEncryptArray(
    PMPrintSettings settings, bool withParam, const QList<QWidget *> &encryptArray) {
    for (const QWidget *view : encryptArray)
        if (view && ControlPtr && views::tag(view) == views::tag(ControlPtr))
            return SetValueToTicketWithVLTEnc(settings, withParam);
    return SetValueToTicket(settings, withParam);
}

bool BaseControlKRVImageOptions::SetValueToTicket(PMPrintSettings settings, bool withParam) {
    if (!ctrlDataAccessInfoPtr || !ctrlDataAccessInfoPtr->ticketKey)
        return false;
    std::array<char, kTicketBufferSize> text{};
    if (!ConvertToTickectData(text.data()))
        return false;
    text.back() = 0;
    if (needsEscape(text.data()))
        return writeTicketText(escaped(text.data()).c_str(), settings, withParam);
    if (IsOutputNullToTicket())
        text.fill(0);
    return writeTicketText(text.data(), settings, withParam);
}

bool BaseControlKRVImageOptions::SetValueToTicketWithVLTEnc(PMPrintSettings settings,
                                                            bool withParam) {
    if (!ctrlDataAccessInfoPtr || !ctrlDataAccessInfoPtr->ticketKey)
        return false;
    std::array<char, kTicketBufferSize> text{};
    if (!ConvertToTickectData(text.data()))
        return false;
    text.back() = 0;
    if (const auto length = static_cast<int32_t>(std::strlen(text.data()))) {
        constexpr int32_t capacity = kTicketBufferSize - 1;
        std::array<unsigned char, kTicketBufferSize> scrambled{};
        int32_t written = 0;
        auto *bytes = reinterpret_cast<unsigned char *>(text.data());
        if (VLTEncrypt(bytes, length, scrambled.data(), &written, capacity) != 0)
            return false;
        text.fill(0);
        int32_t encoded = 0;
        if (VLTBinToB64(scrambled.data(), written, bytes, &encoded, capacity) != 0)
            return false;
    }
    if (IsOutputNullToTicket())
        text.fill(0);
    return writeTicketText(text.data(), settings, withParam);
}

bool BaseControlKRVImageOptions::writeTicketText(const char *text, PMPrintSettings settings,
                                                 bool locked) {
    return SetValueToSettingsWithTicketKeyAndLock(
               text, settings, QString::fromUtf8(ctrlDataAccessInfoPtr->ticketKey), locked) == 0;
}
