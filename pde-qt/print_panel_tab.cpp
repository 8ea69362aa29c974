#include "pde-qt/print_panel_tab.h"

#include "pde-qt/tab_pages.h"
#include "pde-qt/tab_work.h"
#include "pde-qt/words.h"

#include <QHideEvent>
#include <QPrintDialog>
#include <QShowEvent>
#include <QVBoxLayout>

PrintPanelTab::PrintPanelTab(QPrintDialog *dialog, const QString &bundle) : QWidget(dialog) {
    pdeqt::installWords();
    setWindowTitle(tr("Image Options"));
    hide(); // until the dialog puts it among its tabs
    auto *pages = new pdeqt::TabPages;
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(pages);
    m_work = std::make_unique<pdeqt::TabWork>(dialog, bundle, this, pages);
    connect(m_work.get(), &pdeqt::TabWork::settled, this, &PrintPanelTab::settled);
}

PrintPanelTab::~PrintPanelTab() = default;

void PrintPanelTab::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (m_work && !event->spontaneous())
        m_work->enterPage();
}

void PrintPanelTab::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    if (m_work && !event->spontaneous())
        m_work->leavePage();
}
