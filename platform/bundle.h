#pragma once

#include "platform/export.h"

#include <QHash>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <memory>

class QTranslator;

/// A directory with `Info.json` and `Resources/`, from which a panel takes its layouts, help pages,
/// pictures and strings.
///
/// `Info.json` is one JSON object; the keys used here are "CFBundleIdentifier" (text, required),
/// "CFBundleVersion" (text) and "CFBundleHelpBookName" (text). Bundles that are open can be found
/// again by their identifier. Read on the host's thread only.
class PDE_PLATFORM_EXPORT Bundle {
public:
    /// Opens a bundle. One that is open already under the same directory is returned again.
    /// @param error  receives the reason in one line on failure; may be null
    /// @return the bundle, or null when the directory or a valid `Info.json` is missing
    static std::shared_ptr<Bundle> open(const QString &directory, QString *error = nullptr);
    /// @return the open bundle with that identifier, or null
    static std::shared_ptr<Bundle> withIdentifier(const QString &identifier);

    /// The languages in which strings and localised resources are looked up, best first, as codes
    /// such as "de" or "zh_CN". Unset, or set to none, the user's locale decides.
    static void setLanguages(const QStringList &codes);
    /// The languages as they are tried: behind a code such as "zh_CN" comes its base "zh", and
    /// English is always tried last.
    static QStringList languages();

    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    /// Absolute path of the bundle's directory, without links and without a slash at its end.
    QString directory() const { return m_directory; }
    QString identifier() const;
    /// @return the value under a key of `Info.json`, or an invalid variant
    QVariant infoValue(const QString &key) const;
    /// Finds a file below `Resources/`: in the folder of each language first, `<code>.lproj` or
    /// `<code>`, then in `Resources/` itself. The type "nib" stands for a Qt Designer form, ".ui".
    /// @param name          file name without its ending; one with a slash finds nothing
    /// @param type          ending without the dot; empty for none
    /// @param subdirectory  folder below `Resources/`, or empty
    /// @return an absolute path, or a null text when there is no such regular file
    QString resourcePath(const QString &name, const QString &type,
                         const QString &subdirectory = {}) const;
    /// Looks a key up in a strings table.
    ///
    /// A table is the file `<table>_<language>.qm` in `Resources/`, compiled from Qt Linguist
    /// sources whose context is "Localizable" and whose source texts are the keys. The best
    /// language that has the table counts; a key that it lacks isn't sought in another one.
    /// @param table  the table's name; null or empty for "Localizable"
    /// @return the text, or `fallback` when the table or the key is missing or the key is null
    QString localizedString(const QString &key, const QString &fallback,
                            const QString &table = {}) const;

private:
    Bundle();
    const QTranslator *translator(const QString &table) const;

    QString m_directory;
    QJsonObject m_info;
    mutable std::map<QString, std::unique_ptr<QTranslator>>
        m_translators; ///< by "<table>_<language>"; null without one
};
