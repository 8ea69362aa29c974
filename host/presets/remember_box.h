#pragma once

#include "host/presets/preset_store.h"

#include <QCheckBox>
#include <QHash>

namespace host {

/// "Remember these settings for this printer": checked for a queue whose last used settings are
/// kept. Nothing is written before keep().
class RememberBox : public QCheckBox {
    Q_OBJECT

public:
    explicit RememberBox(const PresetStore &store, QWidget *parent = nullptr);

    /// Another queue: takes up whether its settings are kept, or what the person has chosen here
    /// before.
    /// @param toFile  the name is that of a PPD, whatever queue is called so
    void setQueue(const QString &queue, bool toFile = false);
    /// A job was sent: keeps its settings if the person wants that, else forgets those of an
    /// earlier one. @throw HostError
    void keep(const Preset &sent);

private:
    PresetStore m_store;
    QString m_queue;
    bool m_toFile = false;
    QHash<std::pair<QString, bool>, bool> m_chosen; ///< by queue, or file
};

} // namespace host
