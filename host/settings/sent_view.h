#pragma once

#include "host/settings/sent_list.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QTableWidget;

namespace host {

/// A table of what will be sent: "Setting", "Printer's default", "Chosen", "Sent".
class SentView : public QWidget {
    Q_OBJECT

public:
    explicit SentView(QWidget *parent = nullptr);

    void setRows(const QList<SentRow> &rows);

private:
    void showRows(bool unchanged);
    void fitColumns();
    void resizeEvent(QResizeEvent *event) override;

    QList<SentRow> m_rows;
    QLabel *m_words;
    QTableWidget *m_table;
    QCheckBox *m_showUnchanged;
    QTimer m_fitColumns;
    QTimer m_fitRows;
};

} // namespace host
