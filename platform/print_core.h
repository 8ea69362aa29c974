#pragma once

#include "platform/export.h"

#include <QMap>
#include <QString>
#include <QVariant>

#include <cstdint>
#include <optional>

/// Results of the print calls: 0 is success, every other number a failure.
using PMStatus = int32_t;

inline constexpr PMStatus kPMNoError = 0;
inline constexpr PMStatus kPMInvalidParameter = -50;
inline constexpr PMStatus kPMOutOfMemory = -108;
inline constexpr PMStatus kPMNoSuchEntry = -30874;   ///< no value under that key
inline constexpr PMStatus kPMLocked = -30878;        ///< the entry is locked against changes
inline constexpr PMStatus kPMNoTicketValue = -30891; ///< the session has no such ticket value

/// The named values of one print job, the ticket: a text under each key, with a lock flag.
///
/// Owned by the host. Not thread-safe: used on the host's thread only.
class PDE_PLATFORM_EXPORT PrintSettings {
public:
    struct Entry {
        QString value;
        bool locked = false;
    };

    /// @return the entry under the key, or null; valid until the next change
    const Entry *find(const QString &key) const;
    /// Stores a value. A locked entry keeps its value.
    /// @return kPMNoError; kPMInvalidParameter for an empty key or a null value; kPMLocked
    PMStatus set(const QString &key, const QString &value, bool locked);
    /// All entries, in the order of their keys.
    const QMap<QString, Entry> &entries() const { return m_entries; }

private:
    QMap<QString, Entry> m_entries;
};

/// A print queue, or a PPD file that stands for one.
struct Printer {
    QString id; ///< the queue's name, or the PPD file's name without its ending
};

/// What one print dialog knows: the current printer and named data.
///
/// Owned by the host. Numbers are stored as integers, buffers as QByteArray.
class PDE_PLATFORM_EXPORT PrintSession {
public:
    void setCurrentPrinter(const Printer &printer) { m_printer = printer; }
    const std::optional<Printer> &currentPrinter() const { return m_printer; }
    void setData(const QString &key, const QVariant &data) { m_data.insert(key, data); }
    QVariant data(const QString &key) const { return m_data.value(key); }

private:
    std::optional<Printer> m_printer;
    QMap<QString, QVariant> m_data;
};

using PMPrintSettings = PrintSettings *;
using PMPrintSession = PrintSession *;
using PMPrinter = const Printer *;

/// Reads the value under a key.
/// @param value  receives the text; left alone on failure
/// @return kPMNoError, kPMInvalidParameter for a null argument, kPMNoSuchEntry
PDE_PLATFORM_EXPORT PMStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key,
                                                     QString *value);
/// Stores a value under a key, see PrintSettings::set.
/// @return kPMNoError, kPMInvalidParameter for null settings, an empty key or a null value,
///         kPMLocked when the entry is locked
PDE_PLATFORM_EXPORT PMStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                                     const QString &value, bool locked);
/// Reads the session's data under a key; no data is a success with an invalid variant.
/// @return kPMNoError, kPMInvalidParameter for a null argument
PDE_PLATFORM_EXPORT PMStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key,
                                                         QVariant *data);
/// @param printer  receives the current printer, owned by the session
/// @return kPMNoError, kPMInvalidParameter for a null argument, kPMNoSuchEntry without a printer
PDE_PLATFORM_EXPORT PMStatus PMSessionGetCurrentPrinter(PMPrintSession session, PMPrinter *printer);
/// @return the printer's identifier; a null text for no printer
PDE_PLATFORM_EXPORT QString PMPrinterGetID(PMPrinter printer);
