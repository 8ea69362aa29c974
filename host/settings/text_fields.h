#pragma once

#include "host/settings/custom_parameters.h"

#include <QLineEdit>

namespace host {

/// A field for a parameter that is a text. It takes no more than the parameter does.
class CustomTextField : public QLineEdit {
    Q_OBJECT

public:
    explicit CustomTextField(const CustomParameter &parameter, QWidget *parent = nullptr);
};

/// A field for a password or a PIN: masked, and digits only for the latter.
class SecretField : public CustomTextField {
    Q_OBJECT

public:
    explicit SecretField(const CustomParameter &parameter, QWidget *parent = nullptr);
};

} // namespace host
