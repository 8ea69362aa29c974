#include "platform/views/check_box_view.h"

CheckBoxView::CheckBoxView(QWidget *parent) : TitledButton(parent) {}
