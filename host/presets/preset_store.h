#pragma once

#include "host/presets/preset.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

/// A preset in a queue's list.
struct PresetRow {
    QString name;
    QString problem; ///< why the file can't be used, half a sentence; null where it can
};

/// The presets of all queues as files in one folder, and what else is remembered of the queues:
///
///     presets/QUEUE/NAME.json    names as fileNameFor() writes them
///     last-used/QUEUE.json
///     recent-queues.json
///
/// The files are the only state: any number of stores, processes and threads may work on one
/// folder. A file appears whole or not at all, and none replaces another unasked. Every call reads
/// or writes some small files. All throw HostError where they can't.
class PresetStore {
public:
    enum class Existing { Keep, Replace };
    enum class Outcome { Done, Exists };

    /// What an import brought.
    struct Imported {
        Outcome outcome = Outcome::Done;
        Preset preset;     ///< as it is kept
        QString fromQueue; ///< the queue that it was made for; null if it is this one
    };

    explicit PresetStore(const QString &folder = userFolder());
    /// "image-options" in the user's configuration folder.
    static QString userFolder();

    /// The queues that have presets, in the order of a person's language.
    QStringList queues() const;
    /// The presets of a queue in that order, those that can't be used among them.
    QList<PresetRow> list(const QString &queue) const;
    Preset load(const QString &queue, const QString &name) const;

    /// Keeps a preset under its name and queue.
    /// @return Exists, with nothing written, if there is one of that name and it is to be kept
    Outcome save(const Preset &preset, Existing existing = Existing::Keep);
    /// @return Exists, with nothing done, if there is a preset of the new name
    Outcome rename(const QString &queue, const QString &from, const QString &to);
    /// Removes a preset, also one that can't be used.
    void remove(const QString &queue, const QString &name);
    /// Keeps the preset of a file for a queue, whatever queue it was made for.
    Imported importFile(const QString &path, const QString &queue,
                        Existing existing = Existing::Keep);
    /// Writes a preset to a file, in place of one under that name.
    void exportFile(const QString &queue, const QString &name, const QString &path) const;

    /// The settings that the person wants to find again. @return nothing without any
    std::optional<Preset> lastUsed(const QString &queue) const;
    bool hasLastUsed(const QString &queue) const;
    /// @param preset  nothing to forget them
    void setLastUsed(const QString &queue, const std::optional<Preset> &preset);

    /// The queues that were printed to, at most ten, the latest first. A list that can't be read is
    /// empty.
    QStringList recentQueues() const;
    /// Puts a queue first.
    void noteRecentQueue(const QString &queue);

private:
    QString queueFolder(const QString &queue) const;
    /// The file of a preset; where it would be for one that there isn't.
    QString pathOf(const QString &queue, const QString &name) const;
    QString lastUsedPath(const QString &queue) const;

    QString m_folder;
};

} // namespace host
