#pragma once

#include "pde-qt/pde_qt_export.h"

#include <QString>
#include <QWidget>

#include <memory>

class QPrintDialog;

namespace pdeqt {
class TabWork;
}

/// The print panel as a tab of Qt's own print dialog, for the printer that is chosen there.
///
///     QPrintDialog dialog(&printer);
///     dialog.setOptionTabs({new PrintPanelTab(&dialog)});
///     if (dialog.exec() == QDialog::Accepted)
///         paint(&printer); // the job has the panel's choices
///
/// The printer's PPD is fetched in the background; the tab says so meanwhile, says why when it
/// can't be had, and says so when the printer has no panel. When another printer is chosen, each
/// keeps its choices for as long as this object lives, also over several runs of the dialog. The
/// panel starts with the printer's defaults; for the printer that QPrinter has when the tab is
/// made, also with what stands among its options for CUPS (see below).
///
/// When the dialog is accepted, the panel's choices and print settings go to the options for CUPS
/// on the printer's print engine (a QStringList of keyword, choice, keyword, choice, under the
/// property 0xfe00), each keyword once; all others that stand there are kept. Qt's dialog itself
/// empties and fills that list just before, so that a program's own options belong behind it. A
/// choice that a person makes in Qt's "Properties" counts where the panel's was left as it was.
/// Nothing is written when the dialog is cancelled.
///
/// On the interface's thread, with a QApplication. Nothing throws; nothing waits for the server.
class PDE_QT_EXPORT PrintPanelTab : public QWidget {
    Q_OBJECT

public:
    /// Makes the tab, to be handed to QPrintDialog::setOptionTabs(), which shows it; its title is
    /// its windowTitle.
    ///
    /// To be made before anything is connected to QDialog::accepted() or finished() that prints:
    /// slots are called in the order in which they were connected. QPrintDialog's own signal,
    /// accepted(QPrinter *), comes later in any case.
    /// @param dialog  owns the tab, which may be destroyed earlier. Its printer may go before it
    /// @param bundle  the panel's bundle, a directory; null for the one that is installed with this
    ///                library
    explicit PrintPanelTab(QPrintDialog *dialog, const QString &bundle = {});
    ~PrintPanelTab() override;

signals:
    /// What the tab shows for the printer that is chosen stands now.
    /// @param hasPanel  false for words in the panel's place
    void settled(bool hasPanel);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::unique_ptr<pdeqt::TabWork> m_work;
};
