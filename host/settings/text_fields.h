#pragma once

#include "host/settings/custom_parameters.h"

#include <QLineEdit>

namespace host {

/// A field for a password or a PIN: masked, and digits only for the latter. One that is too long is
/// taken, so that it can be told; cut, it would be another one.
class SecretField : public QLineEdit {
    Q_OBJECT

public:
    explicit SecretField(const CustomParameter &parameter, QWidget *parent = nullptr);
};

} // namespace host
