#include "host/presets/preset.h"
#include "host/words.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace host {
namespace {

constexpr char kFormat[] = "image-options-preset";
constexpr int kVersion = 1;

/// Why a file isn't taken; caught in parsePreset().
struct Refusal {
    QString reason;
};

[[noreturn]] void refuse(const QString &reason) {
    throw Refusal{reason};
}

[[noreturn]] void refuseType(const QString &key) {
    refuse(HostWords::tr("“%1” isn't what it should be").arg(key));
}

QString textOf(const QJsonValue &value, const QString &key) {
    if (!value.isString())
        refuseType(key);
    QString text = value.toString();
    if (text.contains(QChar(u'\0')) || !text.isValidUtf16())
        refuse(HostWords::tr("“%1” has a character that is none").arg(key));
    return text;
}

QStringList listOf(const QJsonValue &value, const QString &key) {
    if (!value.isArray())
        refuseType(key);
    QStringList texts;
    for (const auto &each : value.toArray())
        texts.append(textOf(each, key));
    return texts;
}

/// Reads the members of an object, none of which has an empty key.
template <typename Value, typename Read>
QMap<QString, Value> mapOf(const QJsonObject &file, const char *key, const Read &read) {
    const QJsonValue value = file[QLatin1String(key)];
    if (!value.isObject() && !value.isUndefined())
        refuseType(QLatin1String(key));
    QMap<QString, Value> map;
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (textOf(member.key(), QLatin1String(key)).isEmpty())
            refuse(HostWords::tr("“%1” has an empty key").arg(QLatin1String(key)));
        map.insert(member.key(), read(member.value(), member.key()));
    }
    return map;
}

PrintSettings::Entry entryOf(const QJsonValue &value, const QString &key) {
    const QJsonObject object = value.toObject();
    const QJsonValue locked = object[QLatin1String("locked")];
    if (!value.isObject() || object.size() != 2 || !locked.isBool())
        refuseType(key);
    return {textOf(object[QLatin1String("value")], key), locked.toBool()};
}

qsizetype memberCount(const QJsonValue &value) {
    qsizetype count = 0;
    const QJsonObject object = value.toObject();
    for (const auto &member : object)
        count += 1 + memberCount(member);
    for (const auto &element : value.toArray())
        count += memberCount(element);
    return count;
}

/// @return how many members a valid JSON text has: each has one colon outside of texts
qsizetype colonCount(const QByteArray &json) {
    qsizetype count = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < json.size(); ++i) {
        if (quoted && json[i] == '\\')
            ++i;
        else if (json[i] == '"')
            quoted = !quoted;
        else if (!quoted && json[i] == ':')
            ++count;
    }
    return count;
}

QJsonObject readObject(const QByteArray &text) {
    if (text.size() > kGreatestPresetFile)
        refuse(HostWords::tr("is larger than %1 MB").arg(kGreatestPresetFile >> 20));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        refuse(HostWords::tr("isn't a preset: line %1: %2")
                   .arg(text.left(error.offset).count('\n') + 1)
                   .arg(error.errorString()));
    const QJsonObject file = document.object();
    if (file[QLatin1String("format")] != QLatin1String(kFormat))
        refuse(HostWords::tr("isn't a preset"));
    // The reader keeps the last of several members of one key.
    if (memberCount(file) != colonCount(text))
        refuse(HostWords::tr("has a key twice"));
    return file;
}

void checkVersion(const QJsonValue &version) {
    const double number = version.toDouble();
    if (number > kVersion)
        refuse(HostWords::tr("was made by a newer version of this program (format %1); it is "
                             "left as it is")
                   .arg(number));
    if (number != kVersion)
        refuseType(QStringLiteral("version"));
}

void checkKeys(const QJsonObject &file) {
    static constexpr const char *kKeys[] = {"format",  "version",    "name",       "queue",
                                            "choices", "enterAgain", "jobOptions", "settings"};
    for (const QString &key : file.keys())
        if (std::none_of(std::begin(kKeys), std::end(kKeys),
                         [&](const char *known) { return key == QLatin1String(known); }))
            refuse(HostWords::tr("has the unknown key “%1”").arg(key));
}

Preset presetFrom(const QJsonObject &file) {
    Preset preset;
    preset.name = textOf(file[QLatin1String("name")], QStringLiteral("name"));
    if (const QString problem = presetNameProblem(preset.name); !problem.isNull())
        refuse(problem);
    preset.queue = textOf(file[QLatin1String("queue")], QStringLiteral("queue"));
    preset.choices =
        mapOf<QStringList>(file, "choices", [](const QJsonValue &value, const QString &key) {
            return value.isArray() ? listOf(value, key) : QStringList{textOf(value, key)};
        });
    preset.jobOptions = mapOf<QString>(file, "jobOptions", textOf);
    preset.settings = mapOf<PrintSettings::Entry>(file, "settings", entryOf);
    if (file.contains(QLatin1String("enterAgain")))
        preset.enterAgain = listOf(file[QLatin1String("enterAgain")], QStringLiteral("enterAgain"));
    return preset;
}

} // namespace

QByteArray presetText(const Preset &preset) {
    QJsonObject choices, jobOptions, settings;
    for (auto row = preset.choices.begin(); row != preset.choices.end(); ++row)
        choices.insert(row.key(), row->size() == 1 ? QJsonValue(row->first())
                                                   : QJsonArray::fromStringList(*row));
    for (auto row = preset.jobOptions.begin(); row != preset.jobOptions.end(); ++row)
        jobOptions.insert(row.key(), row.value());
    for (auto row = preset.settings.begin(); row != preset.settings.end(); ++row)
        settings.insert(row.key(), QJsonObject{{"value", row->value}, {"locked", row->locked}});
    QJsonObject file{{"format", kFormat},     {"version", kVersion}, {"name", preset.name},
                     {"queue", preset.queue}, {"choices", choices},  {"jobOptions", jobOptions},
                     {"settings", settings}};
    if (!preset.enterAgain.isEmpty())
        file.insert("enterAgain", QJsonArray::fromStringList(preset.enterAgain));
    return QJsonDocument(file).toJson(QJsonDocument::Indented);
}

std::optional<Preset> parsePreset(const QByteArray &text, QString *reason) {
    try {
        const QJsonObject file = readObject(text);
        checkVersion(file[QLatin1String("version")]);
        checkKeys(file);
        return presetFrom(file);
    } catch (const Refusal &refusal) {
        *reason = refusal.reason;
        return std::nullopt;
    }
}

} // namespace host
