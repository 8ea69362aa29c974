#include "platform/views/slider_view.h"

#include "platform/views/accessibility.h"

#include <QSignalBlocker>
#include <QWheelEvent>

#include <cmath>

SliderView::SliderView(QWidget *parent) : QSlider(Qt::Horizontal, parent) {
    views::installAccessibility();
    setPageStep(1);
    connect(this, &QAbstractSlider::actionTriggered, this, &SliderView::move);
}

void SliderView::setIntValue(int value) {
    const QSignalBlocker silence(this);
    setValue(value);
}

void SliderView::setMinValue(int value) {
    const QSignalBlocker silence(this); // clamping would tell of a new value
    setMinimum(value);
    placeTickMarks();
}

void SliderView::setMaxValue(int value) {
    const QSignalBlocker silence(this);
    setMaximum(value);
    placeTickMarks();
}

void SliderView::setAllowsTickMarkValuesOnly(bool only) {
    m_tickMarksOnly = only;
}

void SliderView::setNumberOfTickMarks(int number) {
    m_tickMarks = number;
    placeTickMarks();
}

bool SliderView::slideTo(int value) {
    if (!views::isUsable(this) || value < minimum() || value > maximum())
        return false;
    setSliderPosition(value);
    return true;
}

void SliderView::wheelEvent(QWheelEvent *event) {
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore(); // scrolling past the slider must not change it
}

void SliderView::move() {
    // The value is still the old one here; Qt sets it only after this signal.
    const int moved = nearestTickMark(sliderPosition());
    const bool changed = moved != value();
    setValue(moved); // the position follows, and is what Qt will set
    if (changed)
        sendAction();
}

void SliderView::placeTickMarks() {
    setTickPosition(m_tickMarks < 2 ? NoTicks : TicksBelow);
    if (m_tickMarks >= 2)
        setTickInterval(static_cast<int>((qint64(maximum()) - minimum()) / (m_tickMarks - 1)));
}

int SliderView::nearestTickMark(int value) const {
    const double range = double(maximum()) - minimum();
    if (!m_tickMarksOnly || m_tickMarks < 2 || range <= 0)
        return value;
    const double step = range / (m_tickMarks - 1);
    return static_cast<int>(minimum() + std::lround(std::round((value - minimum()) / step) * step));
}
