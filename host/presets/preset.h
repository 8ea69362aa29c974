#pragma once

#include "platform/print_core.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

/// Settings that a person keeps under a name, for one queue.
struct Preset {
    QString name;
    QString queue;
    /// Choices by PPD option: one, or for an option of which many can be chosen any number. A
    /// custom value stands as libcups marks it, "Custom.X" or "{A=1 B=2}".
    QMap<QString, QStringList> choices;
    /// Options and keys whose value, a password, isn't kept.
    QStringList enterAgain;
    QMap<QString, QString> jobOptions; ///< options of the job that are none of the PPD
    QMap<QString, PrintSettings::Entry> settings;

    /// @return whether both set the same, whatever their names and queues are
    bool setsSameAs(const Preset &other) const;
};

/// @return why a name can't be a preset's, half a sentence; null where it can
QString presetNameProblem(const QString &name);

/// @return whether a job option or print setting holds a password, by its key
bool isSecretKey(const QString &key);

/// A preset as the content of its file: JSON in UTF-8, indented, keys in alphabetical order.
QByteArray presetText(const Preset &preset);

/// Reads a preset from the content of a file. Everything is checked: form, version, types, texts,
/// keys that are unknown or given twice.
/// @param reason  told when nothing is returned: half a sentence
std::optional<Preset> parsePreset(const QByteArray &text, QString *reason);

/// The greatest size of a preset's file, in bytes.
inline constexpr qint64 kGreatestPresetFile = 1 << 20;

} // namespace host
