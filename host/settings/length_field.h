#pragma once

#include <QWidget>

class QComboBox;

namespace host {

class NumberField;

enum class LengthUnit { Millimetre, Inch, Point };

/// The unit that the locale's people measure paper in.
LengthUnit usualLengthUnit();

/// A field for a length, with the choice of its unit. It keeps the length itself in points, so that
/// a change of the unit changes nothing.
class LengthField : public QWidget {
    Q_OBJECT

public:
    /// @param least  limits, in points
    LengthField(double least, double greatest, QWidget *parent = nullptr);

    double points() const { return m_points; }
    void setPoints(double points);
    LengthUnit unit() const;
    void setUnit(LengthUnit unit);
    /// The limits in the chosen unit, "from 20 to 330 mm".
    QString rangeText() const;
    /// @return whether what was typed is a length within the limits
    bool hasUsableInput() const;
    NumberField *number() const { return m_number; }
    QComboBox *unitList() const { return m_unit; }

signals:
    /// The length was changed, or what is typed isn't usable.
    void edited();
    void unitChanged(host::LengthUnit unit);

private:
    void showUnit();
    void takeNumber();

    double m_least, m_greatest, m_points;
    NumberField *m_number;
    QComboBox *m_unit;
};

} // namespace host
