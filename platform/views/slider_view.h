#pragma once

#include "platform/views/view.h"

#include <QSlider>

/// A slider over whole numbers. Only a person's move sends the action, with the new value in place;
/// every change by program, of the range too, is silent.
class PDE_PLATFORM_EXPORT SliderView : public QSlider, public views::ActionSource {
    Q_OBJECT
public:
    explicit SliderView(QWidget *parent = nullptr);

    int intValue() const { return value(); }
    /// Sets the value, clamped to the range.
    void setIntValue(int value);
    int minValue() const { return minimum(); }
    int maxValue() const { return maximum(); }
    /// Sets an end of the range. The other end moves along where they would cross, and the value is
    /// clamped.
    void setMinValue(int value);
    void setMaxValue(int value);
    /// Whether a person can only reach the values at the tick marks.
    void setAllowsTickMarkValuesOnly(bool only);
    /// Spreads a number of tick marks evenly from end to end; below 2 there are none.
    void setNumberOfTickMarks(int number);
    /// What a person does with the slider: the action is sent if the value changes.
    /// @return false, with nothing done, if the view is disabled or hidden, or the value out of
    /// range
    bool slideTo(int value);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void move();
    void placeTickMarks();
    int nearestTickMark(int value) const;

    bool m_tickMarksOnly = false;
    int m_tickMarks = 0;
};
