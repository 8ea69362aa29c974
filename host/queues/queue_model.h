#pragma once

#include "host/queues/queue_info.h"

#include <QAbstractListModel>
#include <QCollator>

namespace host {

/// The rows of a list of printers: "Print to File", then those that were used lately, then the
/// others by name. A filter leaves those whose name, description, location or model has its words.
///
/// DisplayRole is the name, kSecondLineRole what else is known. A screen reader hears name and
/// state as the text, the rest as the description. Rows that stand where they stood are changed in
/// place.
class QueueModel : public QAbstractListModel {
    Q_OBJECT

public:
    static constexpr int kSecondLineRole = Qt::UserRole;

    explicit QueueModel(QObject *parent = nullptr);

    void setQueues(const QList<QueueInfo> &queues);
    /// The queues that were used lately, the latest first.
    void setRecent(const QStringList &names);
    /// Tells that a queue has a panel of its own.
    void setPanel(const QString &queue, const QString &name);
    void setFilter(const QString &words);
    /// The server can't be asked, so that a queue that isn't told isn't on its way either.
    void setFailed(bool isFailed);
    /// A queue that stays listed though the server doesn't tell it, or hasn't yet; null for none.
    void keep(const QString &queue);

    /// Whether the server has told its queues.
    bool isFilled() const { return m_isFilled; }
    /// Whether the filter leaves no queue.
    bool isAllFiltered() const { return m_isFilled && m_rows.isEmpty() && !m_queues.isEmpty(); }
    /// How many queues there are, whatever the filter leaves.
    int queueCount() const { return int(m_queues.size()); }
    /// @param queue  null for the file
    /// @return the row, or -1 where the filter leaves it out or there is none
    int rowOf(const QString &queue) const;
    /// @return a row's queue; null for the file, and for no row
    QString queueAt(int row) const;
    /// @return what is known of a queue, or null
    const QueueInfo *find(const QString &queue) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void arrange();
    void rebuild();
    bool passes(const QueueInfo &info) const;
    bool isBefore(const QString &first, const QString &second) const;
    /// @param info  null for the file, and for a queue that isn't told
    QString stateOf(int row, const QueueInfo *info) const;
    QString aboutOf(int row, const QueueInfo *info) const;

    QList<QueueInfo> m_queues; ///< in the order of the rows
    QCollator m_collator;
    QStringList m_recent;
    QHash<QString, QString> m_panels; ///< their names by queue
    QStringList m_words;
    QString m_kept;
    QStringList m_rows; ///< names, behind the file's row
    bool m_isFilled = false;
    bool m_isFailed = false;
};

} // namespace host
