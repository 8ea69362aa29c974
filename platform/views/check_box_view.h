#pragma once

#include "platform/views/titled_button.h"

#include <QCheckBox>

/// A check box. A person's click changes it and sends the action; a change by program is silent.
class PDE_PLATFORM_EXPORT CheckBoxView : public views::TitledButton<QCheckBox> {
    Q_OBJECT
public:
    explicit CheckBoxView(QWidget *parent = nullptr);

    /// @return 0 off, 1 on
    int intValue() const { return isChecked() ? 1 : 0; }
    /// @param value  0 off, anything else on
    void setIntValue(int value) { setChecked(value != 0); }
};
