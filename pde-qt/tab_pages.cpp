#include "pde-qt/tab_pages.h"

#include "host/dialog/page_area.h"
#include "host/dialog/plain_label.h"
#include "pde-qt/print_panel_tab.h"

#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace pdeqt {
namespace {

enum Page { kWordsPage, kPanelPage };

QLabel *wrappedLabel(const char *name) {
    QLabel *label = host::plainLabel();
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    return label;
}

} // namespace

TabPages::TabPages() {
    m_sentence = wrappedLabel("printPanelSentence");
    m_reason = wrappedLabel("printPanelReason");
    m_retry = new QPushButton(PrintPanelTab::tr("Try &Again"));
    m_retry->setObjectName(QStringLiteral("printPanelRetry"));
    m_retry->setAutoDefault(false);
    connect(m_retry, &QPushButton::clicked, this, &TabPages::retryAsked);
    auto *words = new QWidget;
    auto *column = new QVBoxLayout(words);
    column->addWidget(m_sentence);
    column->addWidget(m_reason);
    column->addWidget(m_retry, 0, Qt::AlignLeft);
    column->addStretch();
    auto *panel = new QWidget;
    m_home = new QVBoxLayout(panel);
    m_home->setContentsMargins({});
    insertWidget(kWordsPage, words);
    m_area = new host::PageArea(panel);
    for (QWidget *ground : {m_area->viewport(), panel})
        ground->setAutoFillBackground(false); // it is the tab's
    insertWidget(kPanelPage, m_area);
}

void TabPages::showWords(const QString &sentence, const QString &reason) {
    m_sentence->setText(sentence);
    m_reason->setText(reason);
    m_reason->setVisible(!reason.isEmpty());
    m_retry->hide();
    setCurrentIndex(kWordsPage);
}

void TabPages::showFailure(const QString &sentence, const QString &reason) {
    showWords(sentence, reason);
    m_retry->show();
}

void TabPages::showPanel() {
    // Qt's dialog gives its tabs no more than they need at least: the whole panel, where the screen
    // has room for it beside the rest of the dialog.
    m_area->setMinimumHeight(
        qMin(m_area->sizeHint().height(), screen()->availableGeometry().height() / 2));
    setCurrentIndex(kPanelPage);
}

} // namespace pdeqt
