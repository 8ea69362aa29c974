#pragma once

#include "host/conflicts/conflict_dialog.h"
#include "host/document.h"
#include "host/presets/preset_store.h"
#include "host/queues/queue_directory.h"
#include "platform/pde/pde_plugin.h"

#include <QDialog>
#include <QTimer>

#include <map>
#include <memory>
#include <optional>

class QDialogButtonBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QVBoxLayout;

namespace host {

class CommonSettings;
class ConflictLine;
class JobPage;
class PresetBar;
class PreviewView;
class ProblemArea;
class QueueJob;
class QueueList;
class RememberBox;
class SummaryPage;
class TypedOptions;
struct CommandLine;

/// What a dialog begins with.
struct DialogSetup {
    PDEPlugin *plugin = nullptr;     ///< outlives the dialog
    std::optional<PpdSource> file{}; ///< the PPD for jobs to a file; without it a plain one is used
    QString queue{};                 ///< chosen at first; null for the default one
    std::optional<Document> document{}; ///< without it the person is asked
    PresetStore store{};
};

/// The print dialog: the document's pages, and beside them the printers with presets and common
/// settings, the panel of the chosen printer, and a summary.
///
/// The window stands before any server is asked, and is never held up by one. What is chosen for a
/// printer is kept while the person looks at another. Closing it by the title bar or Escape is
/// Cancel, which prints and writes nothing.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    explicit PrintDialog(DialogSetup setup);
    ~PrintDialog() override;

    void reject() override;
    /// Sees to it that a printer stays once the person has done anything with its settings.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeDocumentSide();
    QWidget *makeTabs();
    QWidget *makeGeneralPage();
    QDialogButtonBox *makeButtons();

    // The printer.
    void followQueues();
    void takeQueues(const QList<QueueInfo> &queues);
    void selectDefault();
    void pick();
    void showQueue();
    void takeDetails(const std::shared_ptr<QueueDetails> &details);
    void showJob(QueueJob &job);
    void leaveJob();
    void openPanel();
    void showSettings();
    /// Lets work that needs the panel closed change the job's settings as a whole.
    void change(const std::function<QStringList(QueueJob &)> &work);

    // What follows from a change.
    void takeChange(const QString &option);
    void refreshSoon() { m_refresh.start(); }
    void refresh();
    void refreshSettings();
    void refreshSummary();
    void refreshPrinter();
    void orderTabs();
    void leaveTab(int next);
    void savePanel();
    void tell(const QString &headline, const QStringList &lines = {});

    // The document and the job.
    void showDocument();
    void openAnother();
    void chooseDocument();
    bool openDocument(const QString &path);
    void print();
    bool settleConflicts(Purpose purpose);
    void send(const QString &target);
    QString askTarget();
    void finish();
    void backToForm(const QString &reason);

    DialogSetup m_setup;
    QueueDirectory m_directory;
    std::map<QString, std::unique_ptr<QueueJob>> m_jobs; ///< by queue; null for a file
    QueueJob *m_job = nullptr;                           ///< whose settings are shown
    std::optional<ConflictIndex> m_conflicts;            ///< of m_job
    QString m_chosenLast;     ///< keyword of the option that the person changed last
    QString m_failure;        ///< why the chosen printer's settings aren't shown
    bool m_isPicked = false;  ///< the person, or the setup, has chosen a printer
    bool m_isOpening = false; ///< the person looks for a document
    bool m_wasTold = false;   ///< the server has told the chosen printer
    int m_tab = 0;            ///< that stands
    QTimer m_refresh;

    QStackedWidget *m_pages;
    QWidget *m_form;
    JobPage *m_jobPage;
    QTabWidget *m_tabs;
    QLabel *m_documentName;
    PreviewView *m_preview;
    QueueList *m_list;
    QLabel *m_notice; ///< of the chosen printer
    QWidget *m_settingsPart;
    PresetBar *m_presets;
    RememberBox *m_remember;
    CommonSettings *m_common;
    TypedOptions *m_typed;
    QVBoxLayout *m_panelHome;
    SummaryPage *m_summary;
    ConflictLine *m_conflictLine;
    ProblemArea *m_problems;
    QPushButton *m_print;
};

/// The command "dialog". @throw HostError before the dialog is shown
void dialog(const CommandLine &line);

} // namespace host
