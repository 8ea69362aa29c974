#include "host/settings/sent_view.h"

#include "host/settings/tool_tip.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace host {
namespace {

constexpr int kColumns = 5;

} // namespace

SentView::SentView(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("sentView"));
    m_words = new QLabel;
    m_words->setObjectName(QStringLiteral("sentWords"));
    m_words->setTextFormat(Qt::PlainText);
    m_words->setWordWrap(true);
    m_table = new QTableWidget(0, kColumns);
    m_table->setObjectName(QStringLiteral("sentTable"));
    m_table->setAccessibleName(tr("What will be sent"));
    m_table->setHorizontalHeaderLabels(
        {tr("Group"), tr("Setting"), tr("Printer's default"), tr("Chosen"), tr("Sent")});
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_showUnchanged = new QCheckBox(tr("Show &unchanged"));
    m_showUnchanged->setObjectName(QStringLiteral("showUnchanged"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_words);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_showUnchanged);
    m_table->setTextElideMode(Qt::ElideMiddle);
    m_fitColumns.setSingleShot(true);
    connect(&m_fitColumns, &QTimer::timeout, this, &SentView::fitColumns);
    m_fitRows.setSingleShot(true); // once for all columns, when their widths stand
    connect(&m_fitRows, &QTimer::timeout, m_table, &QTableWidget::resizeRowsToContents);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this] { m_fitRows.start(); });
    connect(m_showUnchanged, &QCheckBox::toggled, this, &SentView::showRows);
}

void SentView::setRows(const QList<SentRow> &rows) {
    m_rows = rows;
    showRows(m_showUnchanged->isChecked());
}

void SentView::showRows(bool unchanged) {
    const auto changes =
        std::count_if(m_rows.begin(), m_rows.end(), [](const SentRow &r) { return r.isChanged; });
    m_words->setText(changes == 0 ? tr("Nothing differs from the printer's defaults.")
                                  : tr("%1 of %2 settings differ from the printer's defaults.")
                                        .arg(changes)
                                        .arg(m_rows.size()));
    m_table->setRowCount(0);
    m_table->setRowCount(int(unchanged ? m_rows.size() : changes));
    int at = 0;
    for (const SentRow &row : std::as_const(m_rows)) {
        if (!unchanged && !row.isChanged)
            continue;
        const QString texts[kColumns] = {
            row.group, row.option, row.queueDefault.isNull() ? tr("none") : row.queueDefault,
            row.chosen.isEmpty() ? tr("none") : row.chosen, row.sentText()};
        for (int column = 0; column < kColumns; ++column) {
            auto *item = new QTableWidgetItem(texts[column]);
            item->setToolTip(plainToolTip(texts[column]));
            if (row.isChanged) {
                QFont font = m_table->font();
                font.setBold(true);
                item->setFont(font);
                item->setData(Qt::AccessibleDescriptionRole,
                              tr("Differs from the printer's default"));
            }
            m_table->setItem(at, column, item);
        }
        ++at;
    }
    fitColumns();
}

/// All columns as wide as their texts, or the widest of them narrower where there isn't the room.
void SentView::fitColumns() {
    m_table->resizeColumnsToContents();
    QList<int> widths;
    for (int column = 0; column < kColumns; ++column)
        widths.append(m_table->columnWidth(column));
    QList<int> sorted = widths;
    std::sort(sorted.begin(), sorted.end());
    int room = m_table->viewport()->width();
    int widest = sorted.last();
    for (int i = 0; i < kColumns; ++i) {
        if (sorted[i] * (kColumns - i) > room) {
            widest = room / (kColumns - i);
            break;
        }
        room -= sorted[i];
    }
    for (int column = 0; column < kColumns - 1; ++column) // the last takes the rest
        m_table->setColumnWidth(column, qMin(widths[column], widest));
    m_fitRows.start();
}

void SentView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    m_fitColumns.start(); // when the table has its size
}

} // namespace host
