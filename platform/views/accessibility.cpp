#include "platform/views/accessibility.h"

#include "platform/views/popup_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace views {

namespace {

/// As Qt's for combo boxes, but for the name.
class AccessibleMenu : public QAccessibleWidget {
public:
    explicit AccessibleMenu(MenuBox *view)
        : QAccessibleWidget(view, QAccessible::ComboBox), m_view(view) {}

    QString text(QAccessible::Text kind) const override {
        const QString own =
            kind == QAccessible::Value ? m_view->currentText() : QAccessibleWidget::text(kind);
        const auto *popup = qobject_cast<const PopupView *>(m_view);
        return popup && kind == QAccessible::Description && own.isEmpty()
                   ? popup->itemExplanation(popup->currentIndex())
                   : own;
    }
    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_view->view()) : nullptr;
    }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *child) const override {
        return child && child->object() == m_view->view() ? 0 : -1;
    }
    QStringList actionNames() const override {
        return m_view->isEnabled() ? QStringList{showMenuAction(), pressAction()} : QStringList();
    }
    void doAction(const QString &name) override {
        if (!actionNames().contains(name))
            return;
        if (m_view->view()->isVisible())
            m_view->hidePopup();
        else
            m_view->showPopup();
    }

private:
    MenuBox *m_view;
};

bool moveTo(SliderView *view, int value) {
    return view->slideTo(value);
}
bool moveTo(StepperView *view, int value) {
    const double wanted = qBound(view->minValue(), double(value), view->maxValue());
    return view->stepBy(static_cast<int>(qBound(-1e9, wanted - view->intValue(), 1e9)));
}

template <class View>
class AccessibleNumber : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    AccessibleNumber(View *view, QAccessible::Role role)
        : QAccessibleWidget(view, role), m_view(view) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(m_view->intValue())
                                          : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return m_view->intValue(); }
    void setCurrentValue(const QVariant &value) override { moveTo(m_view, value.toInt()); }
    QVariant minimumValue() const override { return static_cast<int>(m_view->minValue()); }
    QVariant maximumValue() const override { return static_cast<int>(m_view->maxValue()); }
    QVariant minimumStepSize() const override { return 1; }

private:
    View *m_view;
};

QAccessibleInterface *accessibleView(const QString &className, QObject *object) {
    if (className == QLatin1String("MenuBox")) // popups are, too
        return new AccessibleMenu(static_cast<MenuBox *>(object));
    if (className == QLatin1String("SliderView"))
        return new AccessibleNumber(static_cast<SliderView *>(object), QAccessible::Slider);
    if (className == QLatin1String("StepperView"))
        return new AccessibleNumber(static_cast<StepperView *>(object), QAccessible::SpinBox);
    return nullptr;
}

} // namespace

void installAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(accessibleView);
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace views
