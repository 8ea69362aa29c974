#pragma once

#include <QDoubleSpinBox>

#include <functional>

namespace host {

/// A field for a number with a fraction. It takes the locale's decimal sign as well as "." and ",",
/// and shows no more digits than the number has.
class NumberField : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit NumberField(QWidget *parent = nullptr);

    QValidator::State validate(QString &text, int &at) const override;
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};

/// Calls after each change of a number field's value or text, also while what is typed isn't a
/// number yet, of which the field's own signals don't tell.
void watchNumber(QAbstractSpinBox *field, QObject *context, const std::function<void()> &call);

} // namespace host
