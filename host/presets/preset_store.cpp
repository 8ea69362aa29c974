#include "host/presets/preset_store.h"

#include "host/files.h"
#include "host/host_error.h"
#include "host/presets/preset_files.h"
#include "host/words.h"
#include "platform/file_content.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <algorithm>

namespace host {
namespace {

const QString kEnding = QStringLiteral(".json");
constexpr qsizetype kRecentQueues = 10;

std::optional<Preset> read(const QString &path, QString *reason) {
    const auto content = ::readRegularFile(path, kGreatestPresetFile, reason);
    return content ? parsePreset(*content, reason) : std::nullopt;
}

Preset readOrThrow(const QString &path, const QString &subject) {
    QString reason;
    std::optional<Preset> preset = read(path, &reason);
    if (!preset)
        throw HostError(subject, reason);
    return std::move(*preset);
}

bool exists(const QString &path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QStringList fileNames(const QString &folder) {
    return QDir(folder).entryList({u'*' + kEnding}, QDir::Files | QDir::System | QDir::Hidden,
                                  QDir::Name);
}

QCollator collator() {
    QCollator order;
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

/// A hash in place of a name tells nothing, so that the name is taken from what the file says,
/// provided that it belongs there.
QString nameOfFile(const QString &baseName, const QString &saidName) {
    if (fileNameFor(saidName) == baseName)
        return saidName;
    return nameFromFile(baseName).value_or(baseName);
}

PresetRow rowOf(const QDir &folder, const QString &fileName) {
    PresetRow row;
    const std::optional<Preset> preset = read(folder.filePath(fileName), &row.problem);
    row.name = nameOfFile(fileName.chopped(kEnding.size()), preset ? preset->name : QString());
    if (row.problem.isNull())
        row.problem = presetNameProblem(row.name);
    return row;
}

void checkName(const QString &name) {
    if (const QString problem = presetNameProblem(name); !problem.isNull())
        throw HostError(name, problem);
}

void removeFile(const QString &path, const QString &subject) {
    QFile file(path);
    if (!file.remove())
        throw HostError(subject, HostWords::tr("can't be removed: %1").arg(file.errorString()));
}

} // namespace

PresetStore::PresetStore(const QString &folder) : m_folder(folder) {}

QString PresetStore::userFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/image-options");
}

QString PresetStore::queueFolder(const QString &queue) const {
    return m_folder + QStringLiteral("/presets/") + fileNameFor(queue);
}

QString PresetStore::lastUsedPath(const QString &queue) const {
    return m_folder + QStringLiteral("/last-used/") + fileNameFor(queue) + kEnding;
}

QString PresetStore::pathOf(const QString &queue, const QString &name) const {
    const QDir folder(queueFolder(queue));
    const QString usual = folder.filePath(fileNameFor(name) + kEnding);
    if (exists(usual))
        return usual;
    for (const QString &fileName : fileNames(folder.path())) { // a person may have named a file
        const QString base = fileName.chopped(kEnding.size());
        if (nameFromFile(base).value_or(base) == name)
            return folder.filePath(fileName);
    }
    return usual;
}

QStringList PresetStore::queues() const {
    const QDir all(m_folder + QStringLiteral("/presets"));
    QStringList names;
    for (const QString &entry : all.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QDir folder(all.filePath(entry));
        const QStringList files = fileNames(folder.path());
        QString reason, said;
        for (qsizetype i = 0; i < files.size() && said.isEmpty(); ++i)
            if (const auto preset = read(folder.filePath(files[i]), &reason))
                said = preset->queue;
        if (!files.isEmpty())
            names.append(nameOfFile(entry, said));
    }
    std::stable_sort(names.begin(), names.end(), collator());
    return names;
}

QList<PresetRow> PresetStore::list(const QString &queue) const {
    const QDir folder(queueFolder(queue));
    QList<PresetRow> rows;
    for (const QString &fileName : fileNames(folder.path()))
        rows.append(rowOf(folder, fileName));
    std::stable_sort(rows.begin(), rows.end(),
                     [order = collator()](const PresetRow &a, const PresetRow &b) {
                         return order.compare(a.name, b.name) < 0;
                     });
    return rows;
}

Preset PresetStore::load(const QString &queue, const QString &name) const {
    const QString path = pathOf(queue, name);
    if (!exists(path))
        throw HostError(name, HostWords::tr("“%1” has no preset of this name").arg(queue));
    Preset preset = readOrThrow(path, name);
    preset.name = name;
    preset.queue = queue;
    return preset;
}

PresetStore::Outcome PresetStore::save(const Preset &preset, Existing existing) {
    checkName(preset.name);
    const QByteArray text = presetText(preset);
    if (text.size() > kGreatestPresetFile)
        throw HostError(preset.name, HostWords::tr("is too large for a preset"));
    const FolderLock lock(m_folder);
    const QString path = pathOf(preset.queue, preset.name);
    if (existing == Existing::Keep && exists(path))
        return Outcome::Exists;
    makeFolder(queueFolder(preset.queue));
    writeFile(path, text);
    return Outcome::Done;
}

PresetStore::Outcome PresetStore::rename(const QString &queue, const QString &from,
                                         const QString &to) {
    checkName(to);
    const FolderLock lock(m_folder);
    Preset preset = load(queue, from);
    const QString formerPath = pathOf(queue, from), path = pathOf(queue, to);
    if (from == to)
        return Outcome::Done;
    if (exists(path))
        return Outcome::Exists;
    preset.name = to;
    writeFile(path, presetText(preset)); // a break-off here leaves both
    removeFile(formerPath, from);
    return Outcome::Done;
}

void PresetStore::remove(const QString &queue, const QString &name) {
    const FolderLock lock(m_folder);
    removeFile(pathOf(queue, name), name);
    QDir().rmdir(queueFolder(queue)); // stays as long as there is something in it
}

PresetStore::Imported PresetStore::importFile(const QString &path, const QString &queue,
                                              Existing existing) {
    Imported imported;
    imported.preset = readOrThrow(path, path);
    if (imported.preset.queue != queue)
        imported.fromQueue = imported.preset.queue;
    imported.preset.queue = queue;
    imported.outcome = save(imported.preset, existing);
    return imported;
}

void PresetStore::exportFile(const QString &queue, const QString &name, const QString &path) const {
    writeFile(path, presetText(load(queue, name)));
}

std::optional<Preset> PresetStore::lastUsed(const QString &queue) const {
    if (!hasLastUsed(queue))
        return std::nullopt;
    return readOrThrow(lastUsedPath(queue),
                       HostWords::tr("The last used settings of “%1”").arg(queue));
}

bool PresetStore::hasLastUsed(const QString &queue) const {
    return exists(lastUsedPath(queue));
}

void PresetStore::setLastUsed(const QString &queue, const std::optional<Preset> &preset) {
    const FolderLock lock(m_folder);
    const QString path = lastUsedPath(queue);
    if (preset) {
        Preset named = *preset;
        named.name = QStringLiteral("Last used");
        named.queue = queue;
        makeFolder(QFileInfo(path).path());
        writeFile(path, presetText(named));
    } else if (exists(path)) {
        removeFile(path, path);
    }
}

QStringList PresetStore::recentQueues() const {
    QString reason;
    const auto content = ::readRegularFile(m_folder + QStringLiteral("/recent-queues.json"),
                                           kGreatestPresetFile, &reason);
    QStringList queues;
    const QJsonArray names = QJsonDocument::fromJson(content.value_or(QByteArray())).array();
    for (const auto &name : names)
        if (const QString queue = name.toString();
            !queue.isEmpty() && queues.size() < kRecentQueues && !queues.contains(queue))
            queues.append(queue);
    return queues;
}

void PresetStore::noteRecentQueue(const QString &queue) {
    const FolderLock lock(m_folder);
    QStringList queues = recentQueues();
    queues.removeAll(queue);
    queues.prepend(queue);
    writeFile(m_folder + QStringLiteral("/recent-queues.json"),
              QJsonDocument(QJsonArray::fromStringList(queues.mid(0, kRecentQueues))).toJson());
}

} // namespace host
