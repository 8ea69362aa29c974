#include "host/settings/length_field.h"

#include "host/settings/number_field.h"
#include "host/words.h"
#include "platform/views/menu_box.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>

namespace host {
namespace {

struct UnitRow {
    LengthUnit unit;
    const char *name;
    double points;
    int decimals;
    double step;
};

constexpr UnitRow kUnits[] = {
    {LengthUnit::Millimetre, QT_TRANSLATE_NOOP("host", "mm"), 72 / 25.4, 2, 1},
    {LengthUnit::Inch, QT_TRANSLATE_NOOP("host", "inch"), 72, 3, 0.125},
    {LengthUnit::Point, QT_TRANSLATE_NOOP("host", "pt"), 1, 2, 1},
};

const UnitRow &rowOf(LengthUnit unit) {
    return kUnits[static_cast<int>(unit)];
}

double rounded(double value, int decimals, double (*round)(double)) {
    const double factor = std::pow(10, decimals);
    return round(value * factor) / factor;
}

} // namespace

LengthUnit usualLengthUnit() {
    return QLocale().measurementSystem() == QLocale::MetricSystem ? LengthUnit::Millimetre
                                                                  : LengthUnit::Inch;
}

LengthField::LengthField(double least, double greatest, QWidget *parent)
    : QWidget(parent), m_least(least), m_greatest(greatest), m_points(least),
      m_number(new NumberField), m_unit(new MenuBox) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_number);
    layout->addWidget(m_unit);
    for (const UnitRow &row : kUnits)
        m_unit->addItem(HostWords::tr(row.name));
    m_unit->setAccessibleName(HostWords::tr("Unit"));
    m_unit->setCurrentIndex(static_cast<int>(usualLengthUnit()));
    m_number->setMinimumWidth(m_number->fontMetrics().averageCharWidth() * 14);
    setFocusProxy(m_number);
    showUnit();
    watchNumber(m_number, this, [this] { takeNumber(); });
    connect(m_unit, &QComboBox::currentIndexChanged, this, [this] {
        showUnit();
        emit unitChanged(unit());
    });
}

void LengthField::setPoints(double points) {
    m_points = qBound(m_least, points, m_greatest);
    showUnit();
}

LengthUnit LengthField::unit() const {
    return kUnits[qMax(m_unit->currentIndex(), 0)].unit;
}

void LengthField::setUnit(LengthUnit unit) {
    m_unit->setCurrentIndex(static_cast<int>(unit));
}

void LengthField::showUnit() {
    const QSignalBlocker blocker(m_number);
    const UnitRow &row = rowOf(unit());
    m_number->setDecimals(row.decimals);
    m_number->setSingleStep(row.step);
    // The limits themselves must be reachable, whatever they are rounded to.
    m_number->setRange(rounded(m_least / row.points, row.decimals, std::floor),
                       rounded(m_greatest / row.points, row.decimals, std::ceil));
    m_number->setValue(m_points / row.points);
}

void LengthField::takeNumber() {
    const double typed = m_number->value(), shown = m_points / rowOf(unit()).points;
    if (std::abs(typed - shown) >= std::pow(10, -rowOf(unit()).decimals) * 0.51) // not rounding
        m_points = qBound(m_least, typed * rowOf(unit()).points, m_greatest);
    emit edited();
}

bool LengthField::hasUsableInput() const {
    return m_number->hasAcceptableInput();
}

QString LengthField::rangeText() const {
    const UnitRow &row = rowOf(unit());
    const auto text = [&](double points, double (*round)(double)) {
        // within the limits, but for what the last binary digit makes of them
        const double exact = points / row.points, near = rounded(exact, row.decimals, std::round);
        return m_number->textFromValue(
            std::abs(near - exact) < 1e-6 ? near : rounded(exact, row.decimals, round));
    };
    return HostWords::tr("from %1 to %2 %3")
        .arg(text(m_least, std::ceil), text(m_greatest, std::floor), HostWords::tr(row.name));
}

} // namespace host
