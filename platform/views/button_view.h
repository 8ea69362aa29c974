#pragma once

#include "platform/views/titled_button.h"

#include <QPushButton>

/// A push button. It is neither default nor auto-default unless the form says so.
class PDE_PLATFORM_EXPORT ButtonView : public views::TitledButton<QPushButton> {
    Q_OBJECT
public:
    explicit ButtonView(QWidget *parent = nullptr);
};
