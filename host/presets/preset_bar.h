#pragma once

#include "host/presets/preset_store.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <optional>

class QAction;
class QComboBox;
class QMenu;

namespace host {

class ProblemArea;

/// A row of the dialog's first page: the list of a queue's presets, a menu to manage them, and
/// below both what went wrong.
///
/// Works on the store itself, on the interface's thread: its files are few and small. Questions to
/// the person run event loops of their own.
class PresetBar : public QWidget {
    Q_OBJECT

public:
    /// @param current  the settings that stand now, as presetOf() tells them; name and queue are
    ///                 the bar's business
    PresetBar(const PresetStore &store, std::function<Preset()> current, QWidget *parent = nullptr);

    /// Another queue: its rows are listed. The row chosen is the one from when the queue was left,
    /// else "Printer's defaults". Nothing is emitted; call settle() once a new queue's settings
    /// stand, and noteChange() for one that was here before.
    /// @return whether it was here before
    /// @param toFile  the name is that of a PPD, whatever queue is called so
    bool setQueue(const QString &queue, bool toFile = false);
    /// Named sets of options that are kept elsewhere, as rows that can't be changed here. They go
    /// with the next setQueue().
    void setInstances(const QStringList &names);
    /// Lists the rows anew; another program may have changed them.
    void refresh();

    /// Chooses a preset as the person does. @return false if there is none of that name
    bool choose(const QString &name);
    /// Chooses the last used settings as the person does. @return false without any
    bool chooseLastUsed();
    /// Chooses an instance as the person does. @return false if there is none of that name
    bool chooseInstance(const QString &name);

    /// What couldn't be applied of the chosen row, a line each; an empty list takes them away.
    void setProblems(const QStringList &lines);
    /// The settings that stand are those of the chosen row. Called by the bar itself once chosen()
    /// or instanceChosen() returns.
    void settle();
    /// To be called after each change: compares what stands with what was chosen, and shows
    /// "(changed)".
    void noteChange();

    /// Keeps the current settings under a name, asking before it replaces a preset.
    void saveAs(const QString &name);
    /// Keeps the preset of a file for this queue, asking likewise, and chooses it.
    void importFile(const QString &path);
    /// Writes the chosen preset to a file.
    void exportFile(const QString &path);

signals:
    /// A preset, or with null the printer's defaults, is to be applied now; to be connected
    /// directly. Valid during the call.
    void chosen(const host::Preset *preset);
    void instanceChosen(const QString &name);

private:
    enum class Kind { Defaults, LastUsed, Saved, Damaged, Instance };
    struct Row {
        Kind kind = Kind::Defaults;
        QString name;
        QString problem;

        bool isSame(const Row &other) const { return kind == other.kind && name == other.name; }
    };

    int indexOf(const Row &row) const;
    QString titleOf(const Row &row) const;
    void showRows();
    void showChanged();
    void pick(int index);
    bool apply(int number);
    void tell(const QString &headline, const QStringList &lines = {});

    struct Act;
    static const Act *acts(int *count);
    QMenu *makeMenu();
    void enableActs();
    bool confirm(const QString &question, const QString &verb);
    template <typename Work>
    void attempt(const Work &work);
    QString replaceQuestion(const QString &name) const;
    void keep(const QString &name, PresetStore::Existing existing);
    void save();
    void askSaveAs();
    void askRename();
    void askRemove();
    void askImport();
    void askExport();

    PresetStore m_store;
    std::function<Preset()> m_current;
    /// How a queue was left.
    struct Left {
        QStringList instances;
        Row chosen;
        std::optional<Preset> settled;
        bool changed = false;
        QStringList lines;
    };
    QHash<std::pair<QString, bool>, Left> m_left; ///< by queue, or file
    bool m_toFile = false;
    QString m_queue;
    QStringList m_instances;
    QStringList m_lines; ///< what setProblems() told last
    QList<Row> m_rows;   ///< by the number that the list's items carry
    Row m_chosen;
    std::optional<Preset> m_settled;
    bool m_changed = false;

    QComboBox *m_list;
    QList<QAction *> m_acts; ///< in the order of their table
    ProblemArea *m_problems;
};

} // namespace host
