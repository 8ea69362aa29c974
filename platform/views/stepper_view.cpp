#include "platform/views/stepper_view.h"

#include "platform/views/accessibility.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStyleOptionSpinBox>

#include <cmath>
#include <limits>

namespace {

constexpr int kWheelNotch = 120; // QWheelEvent: eighths of a degree in one notch

constexpr int kField = 40; // width of a field that is never seen

/// A spin box whose arrows fill the view; its field sticks out at the side.
QStyleOptionSpinBox spinBox(const QWidget *view, const QRect &rect) {
    QStyleOptionSpinBox option;
    option.initFrom(view);
    const bool mirrored = view->layoutDirection() == Qt::RightToLeft;
    option.rect = rect.adjusted(mirrored ? 0 : -kField, 0, mirrored ? kField : 0, 0);
    option.frame = true;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    option.subControls = QStyle::SC_SpinBoxFrame | QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    return option;
}

int wholeNumber(double value) {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return std::isnan(value) ? 0 : static_cast<int>(qBound(lowest, value, highest));
}

} // namespace

StepperView::StepperView(QWidget *parent) : QWidget(parent) {
    views::installAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void StepperView::setIntValue(int value) {
    value = qBound(m_min, value, m_max);
    if (value == m_value)
        return;
    m_value = value;
    QAccessibleValueChangeEvent change(this, m_value);
    QAccessible::updateAccessibility(&change);
}

void StepperView::setMinValue(double value) {
    const int min = wholeNumber(value);
    setRange(min, qMax(min, m_max));
}

void StepperView::setMaxValue(double value) {
    const int max = wholeNumber(value);
    setRange(qMin(m_min, max), max);
}

void StepperView::setRange(int min, int max) {
    m_min = min;
    m_max = max;
    setIntValue(m_value);
}

bool StepperView::stepBy(int steps) {
    if (!views::isUsable(this))
        return false;
    const QPointer<StepperView> self(this);
    bool moved = true;
    for (int left = steps; left != 0 && moved && self && views::isUsable(self);
         left += steps > 0 ? -1 : 1)
        moved = attempt(steps > 0 ? 1 : -1);
    return true;
}

/// One press of an arrow.
/// @return whether the value has moved; the view may be gone
bool StepperView::attempt(int step) {
    const bool atEnd = step > 0 ? m_value >= m_max : m_value <= m_min;
    if (atEnd)
        m_autoRepeat.stop();
    else
        setIntValue(m_value + step);
    sendAction();
    return !atEnd;
}

QSize StepperView::sizeHint() const {
    const int height = qMax(fontMetrics().height(), 14) + 6;
    QStyleOptionSpinBox option = spinBox(this, rect());
    option.rect = QRect(0, 0, 2 * kField, height);
    const QRect up =
        style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    const int width =
        layoutDirection() == Qt::RightToLeft ? up.right() + 1 : option.rect.width() - up.left();
    constexpr int line = 2; // between the field and the arrows
    return QSize(width + line, height);
}

void StepperView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QStyleOptionSpinBox option = spinBox(this, rect());
    if (m_pressed != 0) {
        option.state |= QStyle::State_Sunken;
        option.activeSubControls = m_pressed > 0 ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
    }
    style()->drawComplexControl(QStyle::CC_SpinBox, &option, &painter, this);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.backgroundColor = palette().color(backgroundRole());
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void StepperView::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    m_pressed = event->position().y() < height() / 2.0 ? 1 : -1;
    update();
    m_autoRepeat.start(
        style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, this), this);
    attempt(m_pressed);
}

void StepperView::mouseReleaseEvent(QMouseEvent *) {
    release();
}

void StepperView::timerEvent(QTimerEvent *event) {
    if (event->timerId() != m_autoRepeat.timerId())
        return QWidget::timerEvent(event);
    m_autoRepeat.start(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate, nullptr, this),
                       this);
    attempt(m_pressed);
}

void StepperView::keyPressEvent(QKeyEvent *event) {
    const int step = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    if (step == 0)
        return QWidget::keyPressEvent(event);
    if (event->isAutoRepeat() && m_keyAtEnd)
        return;
    const QPointer<StepperView> self(this);
    const bool moved = attempt(step);
    if (self)
        m_keyAtEnd = !moved;
}

void StepperView::wheelEvent(QWheelEvent *event) {
    if (!hasFocus())
        return event->ignore(); // scrolling past the arrows must not change the number
    m_wheel += event->angleDelta().y();
    const int steps = m_wheel / kWheelNotch;
    m_wheel %= kWheelNotch;
    stepBy(steps);
}

void StepperView::release() {
    m_pressed = 0;
    m_autoRepeat.stop();
    update();
}

void StepperView::focusOutEvent(QFocusEvent *event) {
    release();
    QWidget::focusOutEvent(event);
}

void StepperView::hideEvent(QHideEvent *event) {
    release();
    QWidget::hideEvent(event);
}

void StepperView::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        release();
    QWidget::changeEvent(event);
}
