#pragma once

#include "host/settings/sent_list.h"

#include <QVariantMap>
#include <QWidget>

class QFormLayout;
class QLabel;

namespace host {

class SentView;

/// What the panel says of its settings, in the panel's order, and below it what will be sent.
class SummaryPage : public QWidget {
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    /// @param title    the panel's name; null without a panel
    /// @param summary  as PanelSession::summary() tells it
    void show(const QString &title, const QVariantMap &summary, const QList<SentRow> &sent);

private:
    QLabel *m_title;
    QFormLayout *m_rows;
    SentView *m_sent;
};

} // namespace host
