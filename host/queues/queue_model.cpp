#include "host/queues/queue_model.h"

#include <QIcon>

#include <algorithm>

namespace host {
namespace {

/// The theme's picture of a state; where it has none, of any printer.
QIcon iconOf(const QueueInfo *info) {
    const char *name = "printer";
    if (info && (info->state == QueueState::Paused || !info->acceptsJobs))
        name = "printer-error";
    else if (info && !info->reasons.isEmpty())
        name = "printer-warning";
    else if (info && info->state == QueueState::Printing)
        name = "printer-printing";
    return QIcon::fromTheme(QLatin1String(name), QIcon::fromTheme(QStringLiteral("printer")));
}

} // namespace

QueueModel::QueueModel(QObject *parent)
    : QAbstractListModel(parent), m_collator(QLocale().collation()) {
    if (m_collator.locale().language() == QLocale::C) // which knows no numbers
        m_collator.setLocale(QLocale::English);
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

void QueueModel::setQueues(const QList<QueueInfo> &queues) {
    m_queues = queues;
    m_isFilled = true;
    arrange();
}

void QueueModel::setRecent(const QStringList &names) {
    m_recent = names;
    arrange();
}

void QueueModel::setFilter(const QString &words) {
    m_words = words.split(u' ', Qt::SkipEmptyParts);
    rebuild();
}

void QueueModel::setPanel(const QString &queue, const QString &name) {
    m_panels.insert(queue, name);
    if (const int row = rowOf(queue); row >= 0)
        emit dataChanged(index(row), index(row));
}

void QueueModel::setFailed(bool isFailed) {
    if (std::exchange(m_isFailed, isFailed) != isFailed)
        emit dataChanged(index(0), index(rowCount() - 1));
}

void QueueModel::keep(const QString &queue) {
    if (queue == m_kept)
        return;
    m_kept = queue;
    rebuild();
}

bool QueueModel::passes(const QueueInfo &info) const {
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString &word) {
        for (const QString &text : {info.name, info.description, info.location, info.makeAndModel})
            if (text.contains(word, Qt::CaseInsensitive))
                return true;
        return false;
    });
}

bool QueueModel::isBefore(const QString &first, const QString &second) const {
    const auto rank = [this](const QString &name) {
        const qsizetype place = m_recent.indexOf(name);
        return place < 0 ? m_recent.size() : place;
    };
    const qsizetype a = rank(first), b = rank(second);
    return a != b ? a < b : m_collator.compare(first, second) < 0;
}

void QueueModel::arrange() {
    std::stable_sort(m_queues.begin(), m_queues.end(),
                     [this](const auto &a, const auto &b) { return isBefore(a.name, b.name); });
    rebuild();
}

void QueueModel::rebuild() {
    QStringList rows;
    for (const QueueInfo &info : m_queues)
        if (info.name == m_kept || passes(info))
            rows.append(info.name);
    if (!m_kept.isEmpty() && !rows.contains(m_kept)) {
        const auto place =
            std::lower_bound(rows.begin(), rows.end(), m_kept,
                             [this](const QString &a, const QString &b) { return isBefore(a, b); });
        rows.insert(place, m_kept);
    }
    if (rows == m_rows) {
        emit dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

int QueueModel::rowOf(const QString &queue) const {
    if (queue.isNull())
        return 0;
    const qsizetype row = m_rows.indexOf(queue);
    return row < 0 ? -1 : int(row) + 1;
}

QString QueueModel::queueAt(int row) const {
    return row > 0 && row <= m_rows.size() ? m_rows[row - 1] : QString();
}

const QueueInfo *QueueModel::find(const QString &queue) const {
    const auto found = std::find_if(m_queues.begin(), m_queues.end(),
                                    [&](const QueueInfo &info) { return info.name == queue; });
    return found == m_queues.end() ? nullptr : &*found;
}

int QueueModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : int(m_rows.size()) + 1;
}

QString QueueModel::stateOf(int row, const QueueInfo *info) const {
    if (row == 0)
        return {};
    if (!info)
        return m_isFilled   ? tr("No longer on the server")
               : m_isFailed ? tr("Nothing is known of it")
                            : tr("Looking for it…");
    //: the default printer and its state
    return info->isDefault ? tr("Default · %1").arg(stateLine(*info)) : stateLine(*info);
}

QString QueueModel::aboutOf(int row, const QueueInfo *info) const {
    if (row == 0)
        return tr("Makes a PostScript file");
    QStringList parts;
    if (const QString panel = m_panels.value(queueAt(row)); !panel.isEmpty())
        parts.append(tr("with %1").arg(panel));
    if (info)
        for (const QString &text : {info->description, info->location})
            if (!text.isEmpty() && text != info->name)
                parts.append(text);
    return parts.join(tr(" · "));
}

QVariant QueueModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const int row = index.row();
    const auto name = [&] { return row == 0 ? tr("Print to File") : safeLine(queueAt(row)); };
    if (role == Qt::DisplayRole)
        return name();
    const QueueInfo *info = row == 0 ? nullptr : find(queueAt(row));
    QStringList parts{stateOf(row, info), aboutOf(row, info)};
    const auto joined = [&parts](const QString &between) {
        parts.removeAll(QString());
        return parts.join(between);
    };
    switch (role) {
    case kSecondLineRole:
        return joined(tr(" · "));
    case Qt::DecorationRole:
        return row == 0 ? QIcon::fromTheme(QStringLiteral("document-save")) : iconOf(info);
    case Qt::AccessibleTextRole:
        return row == 0 ? name() : tr("%1, %2").arg(name(), parts[0]);
    case Qt::AccessibleDescriptionRole:
        return parts[1];
    case Qt::ToolTipRole: {
        parts.prepend(name());
        if (info)
            parts += {info->makeAndModel, info->message};
        return joined(QStringLiteral("\n")).toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
    }
    default:
        return {};
    }
}

} // namespace host
