#pragma once

#include "host/queues/queue_info.h"

#include <QWidget>

class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

namespace host {

class QueueModel;

/// The list of printers of a dialog, with "Print to File" always first and always usable, and below
/// it what there is to say of the server. A field to filter it comes with more than ten printers;
/// Down and Return lead from there into the list, Escape empties it.
class QueueList : public QWidget {
    Q_OBJECT

public:
    explicit QueueList(QWidget *parent = nullptr);

    /// What the server tells. The selection stays, also on a queue that is no longer told.
    void setQueues(const QList<QueueInfo> &queues);
    /// The queues that were used lately, the latest first.
    void setRecent(const QStringList &names);
    /// Tells that a queue has a panel of its own.
    void setPanel(const QString &queue, const QString &name);
    /// The server can't be asked: says why, and offers to try again. Null takes it away.
    void setFailure(const QString &reason);

    /// Selects a queue, whether it is told or not, as a program does. @param queue  null for a file
    void select(const QString &queue);
    /// The selected queue; null for a file.
    const QString &selected() const { return m_selected; }
    /// What is known of the selected queue; null for a file, or one that isn't told.
    const QueueInfo *selectedInfo() const;

    static constexpr int kMostWithoutFilter = 10;

signals:
    /// Another printer was selected, by the person or by select().
    void selectionChanged();
    /// The person has selected it.
    void pickedByPerson();
    void retryAsked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Look { AtSelection, Still };
    /// Lets work change the rows. The selection stays, and what the person sees where they look
    /// still.
    template <class Work>
    void changeRows(Look look, const Work &work);
    void take(const QModelIndex &index);
    void showStatus();

    QueueModel *m_model;
    QLineEdit *m_filter;
    QListView *m_view;
    QLabel *m_status;
    QPushButton *m_retry;
    QString m_selected;
    QString m_failure;
    bool m_isLooking = true; ///< the server is being asked, as the person knows
    bool m_showing = false;  ///< the view's selection follows, nobody has picked
};

} // namespace host
