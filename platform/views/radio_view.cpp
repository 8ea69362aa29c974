#include "platform/views/radio_view.h"

#include <QKeyEvent>

RadioView::RadioView(QWidget *parent) : TitledButton(parent) {
    setAutoExclusive(false); // an exclusive button refuses to be switched off by program
}

void RadioView::nextCheckState() {
    setChecked(true);
}

void RadioView::keyPressEvent(QKeyEvent *event) {
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Up:
        return clickNeighbour(-1);
    case Qt::Key_Down:
        return clickNeighbour(1);
    case Qt::Key_Left:
        return clickNeighbour(-forward);
    case Qt::Key_Right:
        return clickNeighbour(forward);
    default:
        QRadioButton::keyPressEvent(event);
    }
}

void RadioView::clickNeighbour(int step) {
    QList<RadioView *> buttons;
    if (parentWidget())
        for (RadioView *button :
             parentWidget()->findChildren<RadioView *>(QString(), Qt::FindDirectChildrenOnly))
            if (button == this || views::isUsable(button))
                buttons += button;
    if (buttons.size() < 2)
        return;
    RadioView *next = buttons[(buttons.indexOf(this) + step + buttons.size()) % buttons.size()];
    next->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    next->click();
}
