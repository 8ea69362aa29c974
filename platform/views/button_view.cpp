#include "platform/views/button_view.h"

ButtonView::ButtonView(QWidget *parent) : TitledButton(parent) {
    setAutoDefault(false); // in a dialog Qt would make each button answer to Return
}
