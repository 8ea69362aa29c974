#include "platform/views/menu_box.h"

#include "platform/views/accessibility.h"

MenuBox::MenuBox(QWidget *parent) : QComboBox(parent) {
    views::installAccessibility();
}
