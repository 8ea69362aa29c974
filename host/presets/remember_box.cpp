#include "host/presets/remember_box.h"

namespace host {

RememberBox::RememberBox(const PresetStore &store, QWidget *parent)
    : QCheckBox(tr("&Remember these settings for this printer"), parent), m_store(store) {
    setObjectName(QStringLiteral("rememberSettings"));
    setAccessibleDescription(
        tr("If not, they hold for this job only. Passwords aren't remembered."));
    setToolTip(accessibleDescription());
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        m_chosen.insert({m_queue, m_toFile}, on);
    });
}

void RememberBox::setQueue(const QString &queue, bool toFile) {
    m_queue = queue;
    m_toFile = toFile;
    setChecked(m_chosen.value({queue, toFile}, m_store.hasLastUsed(queue)));
}

void RememberBox::keep(const Preset &sent) {
    m_store.setLastUsed(m_queue, isChecked() ? std::optional(sent) : std::nullopt);
}

} // namespace host
