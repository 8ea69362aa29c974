#include "host/settings/number_field.h"

#include <QLineEdit>
#include <QRegularExpression>

namespace host {

NumberField::NumberField(QWidget *parent) : QDoubleSpinBox(parent) {
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(plain);
    setDecimals(4);
}

QValidator::State NumberField::validate(QString &text, int &at) const {
    static const QRegularExpression signs(QStringLiteral("[.,\u066b]"));
    text.replace(signs, locale().decimalPoint());
    return QDoubleSpinBox::validate(text, at);
}

double NumberField::valueFromText(const QString &text) const {
    return QDoubleSpinBox::valueFromText(text);
}

QString NumberField::textFromValue(double value) const {
    QString text = locale().toString(value, 'f', decimals());
    const QString zero = locale().zeroDigit(), sign = locale().decimalPoint();
    if (!text.contains(sign))
        return text;
    while (text.endsWith(zero))
        text.chop(zero.size());
    if (text.endsWith(sign))
        text.chop(sign.size());
    return text;
}

// Qt measures the limits, which may have fewer digits than the numbers between them.
QSize NumberField::sizeHint() const {
    return QDoubleSpinBox::sizeHint() +
           QSize((decimals() + 1) * fontMetrics().horizontalAdvance(u'0'), 0);
}

QSize NumberField::minimumSizeHint() const {
    return sizeHint();
}

void watchNumber(QAbstractSpinBox *field, QObject *context, const std::function<void()> &call) {
    if (auto *whole = qobject_cast<QSpinBox *>(field))
        QObject::connect(whole, &QSpinBox::valueChanged, context, call);
    else if (auto *number = qobject_cast<QDoubleSpinBox *>(field))
        QObject::connect(number, &QDoubleSpinBox::valueChanged, context, call);
    if (auto *edit = field->findChild<QLineEdit *>()) // the field itself has looked before
        QObject::connect(edit, &QLineEdit::textChanged, context, call);
}

} // namespace host
