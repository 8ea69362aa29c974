#include "host/queues/queue_list.h"

#include "host/dialog/plain_label.h"
#include "host/queues/queue_model.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace host {
namespace {

constexpr int kMargin = 4;
constexpr int kRowsShown = 4;

/// A row of two lines: the name, and below it, paler, what else is known.
class QueueDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override {
        return {option.fontMetrics.averageCharWidth() * 24,
                2 * option.fontMetrics.lineSpacing() + 2 * kMargin};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &given,
               const QModelIndex &index) const override {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const QString name = std::exchange(option.text, {});
        const QIcon icon = std::exchange(option.icon, {});
        const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
        style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);

        QRect area = option.rect.adjusted(kMargin, kMargin, -kMargin, -kMargin);
        if (!icon.isNull()) {
            const int side = 2 * option.fontMetrics.height();
            QRect place(0, 0, side, area.height());
            place.moveTopLeft(area.topLeft());
            icon.paint(painter, QStyle::visualRect(option.direction, area, place));
            area =
                QStyle::visualRect(option.direction, area, area.adjusted(side + kMargin, 0, 0, 0));
        }
        const bool selected = option.state & QStyle::State_Selected;
        const QPalette::ColorGroup group =
            !(option.state & QStyle::State_Enabled) ? QPalette::Disabled
            : option.state & QStyle::State_Active   ? QPalette::Active
                                                    : QPalette::Inactive;
        QColor ink =
            option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
        const int line = option.fontMetrics.lineSpacing();
        const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
        const auto draw = [&](int top, const QString &text) {
            painter->setPen(ink);
            const QRect place(area.left(), area.top() + top, area.width(), line);
            // A foreign text reads in its own direction, on the side of the list's.
            painter->setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
            painter->drawText(place, int(side | Qt::AlignAbsolute),
                              option.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
        };
        painter->save();
        painter->setFont(option.font);
        draw(0, name);
        ink.setAlphaF(selected ? 0.85F : 0.7F);
        draw(line, index.data(QueueModel::kSecondLineRole).toString());
        painter->restore();
    }
};

/// A list that isn't higher than it need be.
class QueueView : public QListView {
public:
    QSize sizeHint() const override {
        const QSize hint = QListView::sizeHint();
        return {hint.width(), kRowsShown * rowHeight() + 2 * frameWidth()};
    }
    QSize minimumSizeHint() const override {
        return {QListView::minimumSizeHint().width(), 2 * rowHeight() + 2 * frameWidth()};
    }

private:
    int rowHeight() const { return 2 * fontMetrics().lineSpacing() + 2 * kMargin; }
};

} // namespace

QueueList::QueueList(QWidget *parent)
    : QWidget(parent), m_model(new QueueModel(this)), m_filter(new QLineEdit),
      m_view(new QueueView), m_status(plainLabel()), m_retry(new QPushButton(tr("Re&try"))) {
    m_filter->setObjectName(QStringLiteral("queueFilter"));
    m_filter->setPlaceholderText(tr("Find a printer"));
    m_filter->setAccessibleName(tr("Find a printer"));
    m_filter->setClearButtonEnabled(true);
    m_filter->hide();
    m_filter->installEventFilter(this);
    m_view->setObjectName(QStringLiteral("queueList"));
    m_view->setAccessibleName(tr("Printers"));
    m_view->setModel(m_model);
    m_view->setItemDelegate(new QueueDelegate(m_view));
    m_view->setUniformItemSizes(true);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_status->setObjectName(QStringLiteral("serverStatus"));
    m_status->setWordWrap(true);
    // A long name of a server widens nothing.
    m_status->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_retry->setObjectName(QStringLiteral("retry"));
    m_retry->setAutoDefault(false);

    auto *status = new QHBoxLayout;
    status->addWidget(m_status, 1);
    status->addWidget(m_retry);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filter);
    layout->addWidget(m_view, 1);
    layout->addLayout(status);
    setFocusProxy(m_view);

    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString &words) {
        changeRows(Look::AtSelection, [&] { m_model->setFilter(words); });
        if (!words.isEmpty())
            m_view->scrollToTop(); // what is selected may stand far below what was found
        showStatus();
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &QueueList::take);
    connect(m_retry, &QPushButton::clicked, this, [this] {
        m_view->setFocus(); // the button goes
        m_failure = QString();
        m_isLooking = true;
        m_model->setFailed(false);
        showStatus();
        emit retryAsked();
    });
    changeRows(Look::AtSelection, [] {});
    showStatus();
}

void QueueList::setQueues(const QList<QueueInfo> &queues) {
    changeRows(m_model->isFilled() ? Look::Still : Look::AtSelection,
               [&] { m_model->setQueues(queues); });
    m_filter->setVisible(m_model->queueCount() > kMostWithoutFilter || !m_filter->text().isEmpty());
    m_isLooking = false;
    showStatus();
}

void QueueList::setPanel(const QString &queue, const QString &name) {
    m_model->setPanel(queue, name);
}

void QueueList::setRecent(const QStringList &names) {
    changeRows(Look::AtSelection, [&] { m_model->setRecent(names); });
}

void QueueList::setFailure(const QString &reason) {
    m_failure = reason;
    m_isLooking = false;
    m_model->setFailed(!reason.isNull());
    showStatus();
}

void QueueList::showStatus() {
    const QString words = !m_failure.isNull()          ? m_failure
                          : m_isLooking                ? tr("Looking for printers…")
                          : m_model->queueCount() == 0 ? tr("No printers found on this server.")
                          : m_model->isAllFiltered()   ? tr("No printer has these words.")
                                                       : QString();
    m_retry->setVisible(!m_failure.isNull());
    m_status->setVisible(!words.isEmpty());
    if (words == m_status->text())
        return;
    m_status->setText(words);
    m_status->setToolTip(words.toHtmlEscaped());
    QAccessibleEvent told(m_status, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
}

const QueueInfo *QueueList::selectedInfo() const {
    return m_selected.isNull() ? nullptr : m_model->find(m_selected);
}

void QueueList::select(const QString &queue) {
    const bool isOther = queue != m_selected;
    m_selected = queue;
    changeRows(Look::AtSelection, [] {});
    if (isOther)
        emit selectionChanged();
}

template <class Work>
void QueueList::changeRows(Look look, const Work &work) {
    const QScopedValueRollback showing(m_showing, true);
    const QString top = m_model->queueAt(m_view->indexAt({0, 0}).row());
    work();
    m_model->keep(m_selected);
    const QModelIndex selected = m_model->index(m_model->rowOf(m_selected));
    if (m_view->currentIndex() != selected)
        m_view->setCurrentIndex(selected);
    if (look == Look::AtSelection)
        m_view->scrollTo(selected);
    else if (const int row = m_model->rowOf(top); row >= 0)
        m_view->scrollTo(m_model->index(row), QAbstractItemView::PositionAtTop);
}

void QueueList::take(const QModelIndex &index) {
    if (m_showing || !index.isValid())
        return;
    const QString queue = m_model->queueAt(index.row());
    if (queue == m_selected)
        return;
    m_selected = queue;
    // The row before may have been there for its selection's sake only.
    QMetaObject::invokeMethod(
        this, [this] { changeRows(Look::Still, [] {}); }, Qt::QueuedConnection);
    emit pickedByPerson();
    emit selectionChanged();
}

bool QueueList::eventFilter(QObject *watched, QEvent *event) {
    if (watched != m_filter || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
    case Qt::Key_Return: // which would print otherwise
    case Qt::Key_Enter:
        m_view->setFocus(Qt::TabFocusReason);
        return true;
    case Qt::Key_Escape: // which would close the window
        if (m_filter->text().isEmpty())
            return false;
        m_filter->clear();
        return true;
    default:
        return false;
    }
}

} // namespace host
