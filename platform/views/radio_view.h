#pragma once

#include "platform/views/titled_button.h"

#include <QRadioButton>

/// A radio button that leaves its partners alone: who owns the group switches them off, and may
/// switch all of them off. A click switches it on, also when it is on, and sends the action.
///
/// The arrow keys click the usable neighbour among the radio views of the same parent, in the order
/// in which the parent holds them, round the ends.
class PDE_PLATFORM_EXPORT RadioView : public views::TitledButton<QRadioButton> {
    Q_OBJECT
public:
    explicit RadioView(QWidget *parent = nullptr);

    /// @return 0 off, 1 on
    int intValue() const { return isChecked() ? 1 : 0; }
    /// @param value  0 off, anything else on
    void setIntValue(int value) { setChecked(value != 0); }

protected:
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void clickNeighbour(int step);
};
