#include "host/dialog/summary_page.h"

#include "host/dialog/plain_label.h"
#include "host/panel_session.h"
#include "host/settings/sent_view.h"

#include <QFormLayout>
#include <QVBoxLayout>

namespace host {
namespace {

QLabel *heading() {
    QLabel *label = plainLabel();
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

SummaryPage::SummaryPage(QWidget *parent)
    : QWidget(parent), m_title(heading()), m_rows(new QFormLayout), m_sent(new SentView) {
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addLayout(m_rows);
    QLabel *sent = heading();
    sent->setText(tr("What will be sent"));
    layout->addWidget(sent);
    layout->addWidget(m_sent, 1);
}

void SummaryPage::show(const QString &title, const QVariantMap &summary,
                       const QList<SentRow> &sent) {
    m_title->setText(title);
    m_title->setVisible(!summary.isEmpty());
    while (m_rows->rowCount() > 0)
        m_rows->removeRow(0);
    for (const QString &row : summary.value(QLatin1String(kSummaryOrderKey)).toStringList()) {
        QLabel *value = plainLabel(summary.value(row).toString());
        value->setWordWrap(true);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse);
        QLabel *label = plainLabel(row);
        m_rows->addRow(label, value);
        value->setAccessibleName(row + QStringLiteral(": ") + value->text());
    }
    m_sent->setRows(sent);
}

} // namespace host
