#pragma once

#include "host/dialog/queue_job.h"
#include "host/queues/queue_directory.h"
#include "pde-qt/dialog_printer.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <map>
#include <memory>

class QPrintDialog;

namespace pdeqt {

class TabPages;

/// Drives the panel of a tab: follows the dialog's printer, fetches what a panel needs, opens and
/// closes panels in the order that they require, and hands their choices to the job.
class TabWork : public QObject {
    Q_OBJECT

public:
    /// All but the bundle are borrowed. @param tab  whose title is the panel's name
    TabWork(QPrintDialog *dialog, const QString &bundle, QWidget *tab, TabPages *pages);
    ~TabWork() override;

    /// A person comes to the tab.
    void enterPage();
    /// A person goes to another tab; nothing is done when the whole dialog goes.
    void leavePage();
    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// As PrintPanelTab has it.
    void settled(bool hasPanel);

private:
    /// All that is known and chosen for one printer.
    struct Choices {
        std::unique_ptr<host::QueueJob> job;
        host::OptionList defaults{}; ///< what would be sent of the printer's defaults
        host::OptionList before{};   ///< and when the dialog was accepted last, or at first
        host::OptionList foreign{};  ///< the engine's options at that time, as Qt had put them
        /// What would be sent now of the PPD's options.
        host::OptionList now() const;
    };

    void follow();
    void leavePrinter();
    void ask();
    void take(const std::shared_ptr<host::QueueDetails> &details);
    void show(Choices &choices);
    void showWords(const QString &sentence);
    void showFailure(const QString &sentence, const QString &reason);
    void setTitle(const QString &title);
    /// The open panel's session; null without one, and while a window of a panel runs.
    host::PanelSession *session() const;
    void save();
    void accept();
    void takeForeign(const host::OptionList &options);
    host::OptionList finish(const host::OptionList &options);

    QPrintDialog *m_dialog;
    QPointer<QWidget> m_window; ///< the same; a widget also while it is being destroyed
    QString m_bundle;
    QWidget *m_tab;
    TabPages *m_pages;
    PDEPlugin *m_plugin = nullptr;
    DialogPrinter m_printer;
    host::QueueDirectory m_directory;
    std::map<QString, Choices> m_choices; ///< by the printer's name
    std::optional<ChosenPrinter> m_followed;
    QString m_givenFor;         ///< the printer's name when the tab was made
    host::OptionList m_given;   ///< and the engine's options
    Choices *m_shown = nullptr; ///< those of m_followed, once they are known
    bool m_isMissed = false;    ///< they couldn't be got
    QStringList m_put;          ///< names that were put on the engine
    QTimer m_later;
};

} // namespace pdeqt
