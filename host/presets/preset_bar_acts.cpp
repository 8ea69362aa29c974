// What the bar's menu does: each act asks what it needs to know, works on the store, and tells what
// went wrong.

#include "host/host_error.h"
#include "host/presets/name_dialog.h"
#include "host/presets/preset_bar.h"

#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

namespace host {

/// An act of the menu, and where it is possible.
struct PresetBar::Act {
    const char *text;
    const char *name;
    void (PresetBar::*run)();
    bool (*isPossible)(const PresetBar &bar);
};

const PresetBar::Act *PresetBar::acts(int *count) {
    static constexpr auto kAlways = [](const PresetBar &) { return true; };
    static constexpr auto kSaved = [](const PresetBar &bar) {
        return bar.m_chosen.kind == Kind::Saved;
    };
    static constexpr auto kChanged = [](const PresetBar &bar) {
        return bar.m_chosen.kind == Kind::Saved && bar.m_changed;
    };
    static constexpr auto kFile = [](const PresetBar &bar) {
        return bar.m_chosen.kind == Kind::Saved || bar.m_chosen.kind == Kind::Damaged;
    };
    static constexpr Act kActs[] = {
        {QT_TR_NOOP("&Save"), "savePreset", &PresetBar::save, kChanged},
        {QT_TR_NOOP("Save &As…"), "savePresetAs", &PresetBar::askSaveAs, kAlways},
        {QT_TR_NOOP("&Rename…"), "renamePreset", &PresetBar::askRename, kSaved},
        {QT_TR_NOOP("&Delete…"), "deletePreset", &PresetBar::askRemove, kFile},
        {QT_TR_NOOP("&Import…"), "importPreset", &PresetBar::askImport, kAlways},
        {QT_TR_NOOP("&Export…"), "exportPreset", &PresetBar::askExport, kSaved},
    };
    *count = int(std::size(kActs));
    return kActs;
}

QMenu *PresetBar::makeMenu() {
    auto *menu = new QMenu(this);
    int count = 0;
    const Act *table = acts(&count);
    for (int i = 0; i < count; ++i) {
        QAction *action = menu->addAction(tr(table[i].text), this, table[i].run);
        action->setObjectName(QLatin1String(table[i].name));
        m_acts.append(action);
    }
    connect(menu, &QMenu::aboutToShow, this, [this] {
        noteChange();
        enableActs();
    });
    return menu;
}

void PresetBar::enableActs() {
    int count = 0;
    const Act *table = acts(&count);
    for (int i = 0; i < count; ++i)
        m_acts[i]->setEnabled(!m_queue.isEmpty() && table[i].isPossible(*this));
}

bool PresetBar::confirm(const QString &question, const QString &verb) {
    const QPointer<PresetBar> alive(this);
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, {}, question, QMessageBox::Cancel, window());
    box->setObjectName(QStringLiteral("presetQuestion"));
    box->setTextFormat(Qt::PlainText);
    const QPushButton *yes = box->addButton(verb, QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->exec();
    const bool confirmed = box && box->clickedButton() == yes;
    delete box;
    return alive && confirmed;
}

template <typename Work>
void PresetBar::attempt(const Work &work) {
    try {
        work();
    } catch (const HostError &error) {
        refresh();
        tell(error.text());
    }
}

QString PresetBar::replaceQuestion(const QString &name) const {
    return tr("There is a preset “%1” already. Replace it?").arg(name);
}

void PresetBar::keep(const QString &name, PresetStore::Existing existing) {
    Preset preset = m_current();
    preset.name = name;
    preset.queue = m_queue;
    if (m_store.save(preset, existing) == PresetStore::Outcome::Exists) {
        if (!confirm(replaceQuestion(name), tr("&Replace")))
            return;
        m_store.save(preset, PresetStore::Existing::Replace);
    }
    m_chosen = {Kind::Saved, name, {}};
    m_settled = preset;
    m_changed = false;
    refresh();
    m_lines.clear();
    tell(preset.enterAgain.isEmpty()
             ? QString()
             : tr("Passwords aren't kept in presets. They have to be entered again each time."));
}

void PresetBar::save() {
    attempt([&] { keep(m_chosen.name, PresetStore::Existing::Replace); });
}

void PresetBar::saveAs(const QString &name) {
    attempt([&] { keep(name, PresetStore::Existing::Keep); });
}

void PresetBar::askSaveAs() {
    const QPointer<PresetBar> alive(this);
    const auto name = askPresetName(this, tr("Save Preset"), m_chosen.name);
    if (alive && name)
        saveAs(*name);
}

void PresetBar::askRename() {
    const QPointer<PresetBar> alive(this);
    const auto name = askPresetName(this, tr("Rename Preset"), m_chosen.name);
    if (!alive || !name)
        return;
    attempt([&] {
        if (m_store.rename(m_queue, m_chosen.name, *name) == PresetStore::Outcome::Exists) {
            tell(tr("There is a preset “%1” already. Nothing was renamed.").arg(*name));
            return;
        }
        m_chosen.name = *name;
        refresh();
        tell({});
    });
}

void PresetBar::askRemove() {
    if (!confirm(tr("Delete the preset “%1”? The settings stay as they are.").arg(m_chosen.name),
                 tr("&Delete")))
        return;
    attempt([&] {
        m_store.remove(m_queue, m_chosen.name);
        refresh();
        tell({});
    });
}

void PresetBar::importFile(const QString &path) {
    attempt([&] {
        PresetStore::Imported imported = m_store.importFile(path, m_queue);
        if (imported.outcome == PresetStore::Outcome::Exists) {
            if (!confirm(replaceQuestion(imported.preset.name), tr("&Replace")))
                return;
            imported = m_store.importFile(path, m_queue, PresetStore::Existing::Replace);
        }
        refresh();
        const QPointer<PresetBar> alive(this);
        if (choose(imported.preset.name) && alive && !imported.fromQueue.isNull())
            tell(tr("“%1” was made for the printer “%2”. What this printer has of it is used.")
                     .arg(imported.preset.name, imported.fromQueue),
                 m_lines);
    });
}

void PresetBar::askImport() {
    const QPointer<PresetBar> alive(this);
    const QString path = QFileDialog::getOpenFileName(window(), tr("Import Preset"), {},
                                                      tr("Presets (*.json);;All Files (*)"));
    if (alive && !path.isEmpty())
        importFile(path);
}

void PresetBar::exportFile(const QString &path) {
    attempt([&] {
        m_store.exportFile(m_queue, m_chosen.name, path);
        tell({});
    });
}

void PresetBar::askExport() {
    const QPointer<PresetBar> alive(this);
    const QString suggested = QString(m_chosen.name).replace(u'/', u'-') + QStringLiteral(".json");
    const QString path = QFileDialog::getSaveFileName(window(), tr("Export Preset"), suggested,
                                                      tr("Presets (*.json)"));
    if (alive && !path.isEmpty())
        exportFile(path);
}

} // namespace host
