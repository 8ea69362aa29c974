#include "ppd/print_session.h"

#include "platform/numbers.h"
#include "platform/utf8.h"

#include <cstring>

namespace {

const QString kPMPPDReference = QStringLiteral("kPMPPDReference");
constexpr char16_t kFullwidthBrokenBar = u'\uFFE4';

bool isFraction(const QVariant &data) {
    return data.typeId() == QMetaType::Double || data.typeId() == QMetaType::Float;
}

bool isNumber(const QVariant &data) {
    switch (data.typeId()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return isFraction(data);
    }
}

} // namespace

PMStatus GetTicketFromSession(PMPrintSession session, const QString &key, void *out) {
    if (!out)
        return kPMInvalidParameter;
    QVariant data;
    if (PMSessionGetDataFromSession(session, key, &data) != kPMNoError || !isNumber(data))
        return kPMNoTicketValue;
    const int32_t number = isFraction(data) ? truncatedToInt(data.toDouble())
                                            : static_cast<int32_t>(data.toLongLong());
    std::memcpy(out, &number, sizeof number);
    return kPMNoError;
}

PMStatus GetPPDRefFromSession(PMPrintSession session, ppd_file_t **out) {
    if (!out)
        return kPMInvalidParameter;
    *out = nullptr;
    QVariant data;
    const PMStatus status = PMSessionGetDataFromSession(session, kPMPPDReference, &data);
    if (status != kPMNoError)
        return status;
    const QByteArray buffer =
        data.typeId() == QMetaType::QByteArray ? data.toByteArray() : QByteArray();
    uint32_t reference = 0;
    if (buffer.size() >= qsizetype(sizeof reference)) {
        std::memcpy(&reference, buffer.constData(), sizeof reference);
        *out = reinterpret_cast<ppd_file_t *>(static_cast<uintptr_t>(reference));
    }
    return kPMNoError;
}

bool CreateKeyWithCurrentPrinter(const QString &key, const QString &printer, QString *out) {
    if (key.isNull() || printer.isNull() || !out)
        return false;
    *out += printer + key;
    return true;
}

PMStatus SetPrinterString(PMPrintSession session, QString *out) {
    PMPrinter printer = nullptr;
    if (!out || PMSessionGetCurrentPrinter(session, &printer) != kPMNoError)
        return 1;
    const QString identifier = PMPrinterGetID(printer);
    if (identifier.isNull())
        return 1;
    *out += identifier;
    return kPMNoError;
}

PMStatus SetIntegerValueToSettings(int value, PMPrintSettings settings, const QString &key,
                                   bool locked) {
    return SetValueToSettingsWithTicketKeyAndLock(QByteArray::number(value).constData(), settings,
                                                  key, locked);
}

PMStatus SetValueToSettingsWithTicketKeyAndLock(const char *value, PMPrintSettings settings,
                                                const QString &key, bool locked) {
    if (!value || !settings || key.isNull())
        return kPMInvalidParameter;
    const std::optional<QString> decoded = strictUtf8(value);
    if (!decoded)
        return kPMOutOfMemory;
    QString text = QStringLiteral("") + *decoded; // an empty value is stored, a null one refused
    text.replace(QChar(kFullwidthBrokenBar), u'|');
    return PMPrintSettingsSetValue(settings, key, text, locked);
}
