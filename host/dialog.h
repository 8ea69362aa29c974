#pragma once

#include "host/panel_stage.h"

#include <QDialog>

namespace host {

/// The print dialog: the queue, its panel under the panel's name, and Help, Summary, Cancel, Print.
///
/// Closing it by the title bar or Escape is Cancel, which prints and writes nothing.
class PrintDialog : public QDialog {
public:
    /// @param stage     the queue; outlives the dialog
    /// @param queue     whether it is a queue of CUPS, else a job goes to a file
    /// @param document  null if the user is to be asked
    PrintDialog(PanelStage &stage, bool isQueue, const QString &document);
    ~PrintDialog() override;

    void reject() override;

private:
    /// @return the panel's view, or null
    QWidget *addPanel(QBoxLayout *layout);
    void addButtons(QBoxLayout *layout);
    void showSummary();
    void print();
    void printDocument();

    PanelStage &m_stage;
    bool m_isQueue;
    QString m_document;
    bool m_hasPanel = false;
};

/// The command "dialog". @throw HostError before the dialog is shown
void dialog(const CommandLine &line);

} // namespace host
