#include "host/settings/text_fields.h"

#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace host {

SecretField::SecretField(const CustomParameter &parameter, QWidget *parent) : QLineEdit(parent) {
    setEchoMode(QLineEdit::Password);
    if (parameter.type == PPD_CUSTOM_PASSCODE) {
        setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
        setInputMethodHints(Qt::ImhHiddenText | Qt::ImhDigitsOnly | Qt::ImhNoPredictiveText |
                            Qt::ImhSensitiveData);
    }
}

} // namespace host
