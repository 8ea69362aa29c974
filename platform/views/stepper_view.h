#pragma once

#include "platform/views/view.h"

#include <QBasicTimer>
#include <QWidget>

/// Two small arrows, one above the other, which change a whole number by 1. The number itself is
/// shown elsewhere.
///
/// Each attempt of a person sends the action, also one at the end of the range, where the value
/// stays and a held arrow or key stops repeating. Arrow keys work with focus, and so does the
/// wheel. Changes by program are silent.
class PDE_PLATFORM_EXPORT StepperView : public QWidget, public views::ActionSource {
    Q_OBJECT
public:
    explicit StepperView(QWidget *parent = nullptr);

    int intValue() const { return m_value; }
    /// Sets the value, clamped to the range.
    void setIntValue(int value);
    double minValue() const { return m_min; }
    double maxValue() const { return m_max; }
    /// Sets an end of the range, cut to a whole number. The other end moves along where they would
    /// cross, and the value is clamped.
    void setMinValue(double value);
    void setMaxValue(double value);
    /// What a person does with the arrows: one press a step, up for a positive number, until the
    /// end of the range has refused one.
    /// @return false, with nothing done, if the view is disabled or hidden
    bool stepBy(int steps);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    bool attempt(int step);
    void release();
    void setRange(int min, int max);

    int m_value = 0;
    int m_min = 0;
    int m_max = 99;
    int m_pressed = 0;       ///< the arrow that is held: 1 up, -1 down, 0 none
    bool m_keyAtEnd = false; ///< a held key has met the end of the range
    int m_wheel = 0;         ///< rest of the wheel's turn, in eighths of a degree
    QBasicTimer m_autoRepeat;
};
