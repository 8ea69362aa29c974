#include "platform/views/popup_view.h"

#include "platform/views/accessibility.h"

#include <QHelpEvent>
#include <QPointer>
#include <QStandardItemModel>
#include <QToolTip>
#include <QWheelEvent>

namespace {

constexpr int kIconGap = 4; // of Qt's own measure

/// A text as a tool tip shows it as it stands, in lines of a readable length.
QString toolTipOf(const QString &text) {
    return text.isEmpty() ? QString() : QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

/// An item that is explained when its explanation is asked for.
class PopupItem : public QStandardItem {
public:
    PopupItem(const QString &title, const PopupView *view) : QStandardItem(title), m_view(view) {}

    QVariant data(int role) const override {
        if (role == Qt::ToolTipRole)
            return toolTipOf(m_view->itemExplanation(row()));
        if (role == Qt::AccessibleDescriptionRole)
            return m_view->itemExplanation(row());
        return QStandardItem::data(role);
    }

private:
    const PopupView *m_view; ///< owns the item
};

} // namespace

PopupView::PopupView(QWidget *parent) : MenuBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // the wheel doesn't give focus
    connect(this, &QComboBox::activated, this, &PopupView::activate);
}

// The width that AdjustToMinimumContentsLengthWithIcon gives; setting that makes the list's window
// at once, for each list of a panel.
QSize PopupView::minimumSizeHint() const {
    QSize size = QComboBox::minimumSizeHint();
    if (minimumContentsLength() > 0)
        size.rwidth() += iconSize().width() + kIconGap;
    return size;
}

QSize PopupView::sizeHint() const {
    return minimumContentsLength() > 0 ? minimumSizeHint() : QComboBox::sizeHint();
}

void PopupView::removeAllItems() {
    clear();
    m_shown = currentIndex();
}

void PopupView::addItemWithTitle(const QString &title) {
    insertItemWithTitle(title, count());
}

void PopupView::insertItemWithTitle(const QString &title, int index) {
    auto *items = qobject_cast<QStandardItemModel *>(model());
    items->insertRow(index < 0 || index > count() ? count() : index, new PopupItem(title, this));
    m_shown = currentIndex();
}

QString PopupView::itemTitle(int index) const {
    return itemText(index);
}

QString PopupView::itemRepresentedObject(int index) const {
    return itemData(index, Qt::UserRole).toString();
}

void PopupView::setItemRepresentedObject(int index, const QString &object) {
    setItemData(index, object, Qt::UserRole);
}

bool PopupView::isItemEnabled(int index) const {
    return index >= 0 && index < count() &&
           model()->flags(model()->index(index, modelColumn())).testFlag(Qt::ItemIsEnabled);
}

void PopupView::setItemEnabled(int index, bool enabled) {
    auto *items = qobject_cast<QStandardItemModel *>(model());
    if (QStandardItem *item = items ? items->item(index, modelColumn()) : nullptr)
        item->setEnabled(enabled);
}

void PopupView::setExplainer(std::function<QString(int)> explainer) {
    m_explainer = std::move(explainer);
}

QString PopupView::itemExplanation(int index) const {
    return m_explainer && index >= 0 && index < count() && !isItemEnabled(index)
               ? m_explainer(index)
               : QString();
}

void PopupView::selectItemAtIndex(int index) {
    if (index < -1 || index >= count())
        return;
    setCurrentIndex(index);
    m_shown = index;
}

bool PopupView::chooseItem(int index) {
    if (!views::isUsable(this) || !isItemEnabled(index))
        return false;
    m_shown = currentIndex();
    setCurrentIndex(index);
    emit activated(index);
    return true;
}

void PopupView::showPopup() {
    m_shown = currentIndex();
    MenuBox::showPopup();
}

void PopupView::dropAction() {
    ActionSource::dropAction();
    m_explainer = {};
}

bool PopupView::event(QEvent *event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return MenuBox::event(event);
    const QString words = toolTipOf(itemExplanation(currentIndex()));
    if (words.isEmpty())
        return MenuBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), words, this);
    return true;
}

void PopupView::keyPressEvent(QKeyEvent *event) {
    m_shown = currentIndex();
    MenuBox::keyPressEvent(event);
}

void PopupView::wheelEvent(QWheelEvent *event) {
    if (!hasFocus())
        return event->ignore(); // scrolling past the menu must not change it
    m_shown = currentIndex();
    MenuBox::wheelEvent(event);
}

void PopupView::activate(int index) {
    if (index == m_shown)
        return;
    m_before = m_shown;
    m_shown = index;
    const QPointer<PopupView> self(this);
    sendAction();
    if (self) // the action may give the view up
        m_before.reset();
}
