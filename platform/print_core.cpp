#include "platform/print_core.h"

const PrintSettings::Entry *PrintSettings::find(const QString &key) const {
    const auto entry = m_entries.constFind(key);
    return entry == m_entries.constEnd() ? nullptr : &*entry;
}

PMStatus PrintSettings::set(const QString &key, const QString &value, bool locked) {
    if (key.isEmpty() || value.isNull())
        return kPMInvalidParameter;
    if (const Entry *entry = find(key); entry && entry->locked)
        return kPMLocked;
    m_entries.insert(key, {value, locked});
    return kPMNoError;
}

PMStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QString *value) {
    if (!settings || key.isNull() || !value)
        return kPMInvalidParameter;
    const PrintSettings::Entry *entry = settings->find(key);
    if (!entry)
        return kPMNoSuchEntry;
    *value = entry->value;
    return kPMNoError;
}

PMStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key, const QString &value,
                                 bool locked) {
    return settings ? settings->set(key, value, locked) : kPMInvalidParameter;
}

PMStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, QVariant *data) {
    if (!session || key.isNull() || !data)
        return kPMInvalidParameter;
    *data = session->data(key);
    return kPMNoError;
}

PMStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *printer) {
    if (!session || !printer)
        return kPMInvalidParameter;
    if (!session->currentPrinter())
        return kPMNoSuchEntry;
    *printer = &*session->currentPrinter();
    return kPMNoError;
}

QString PMPrinterGetID(PMPrinter printer) {
    return printer ? printer->id : QString();
}
