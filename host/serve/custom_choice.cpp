#include "host/serve/custom_choice.h"

#include "host/settings/custom_parameters.h"
#include "host/settings/option_list.h"
#include "host/settings/ppd_texts.h"
#include "host/words.h"

#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <optional>

namespace host {
namespace {

/// CUPS' units of length, in points.
constexpr struct {
    const char *name;
    double points;
} kUnits[] = {
    {"cm", 72 / 2.54}, {"mm", 72 / 25.4}, {"in", 72},
    {"ft", 72 * 12},   {"pt", 1},         {"m", 72 / 0.0254},
};

/// Takes a unit off a text. @return its length in points; nothing without one
std::optional<double> takeUnit(QString &text) {
    for (const auto &[name, points] : kUnits)
        if (text.endsWith(QLatin1String(name), Qt::CaseInsensitive)) {
            text.chop(qsizetype(qstrlen(name)));
            return points;
        }
    return {};
}

/// A length in points, by its own unit or else another; texts that are none stay as they are.
QString inPoints(QString text, std::optional<double> other = {}) {
    const std::optional<double> own = takeUnit(text);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? QString::number(number * own.value_or(other.value_or(1)), 'g', 17) : text;
}

OptionList parsed(const QString &text) {
    OptionList list;
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.toUtf8().constData(), 0, &options);
    for (int i = 0; i < count; ++i)
        list.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
    cupsFreeOptions(count, options);
    return list;
}

/// The values that were given, by name; nothing where they don't say which is which.
std::optional<OptionList> valuesOf(const ppd_option_t &option, const QJsonValue &given,
                                   const QList<CustomParameter> &parameters) {
    OptionList values;
    if (given.isObject()) {
        const QJsonObject object = given.toObject();
        for (auto value = object.begin(); value != object.end(); ++value)
            values.append({value.key(), plainText(value.value())});
        return values;
    }
    const QString text = given.toString();
    if (text.startsWith(u'{'))
        return parsed(text);
    if (!text.contains(u'.')) // the mere choice
        return values;
    QString value = text.mid(text.indexOf(u'.') + 1);
    if (isPageSize(option)) {
        const QStringList sides = value.split(u'x', Qt::KeepEmptyParts, Qt::CaseInsensitive);
        if (sides.size() != 2)
            return {};
        QString last = sides[1];
        const std::optional<double> unit = takeUnit(last);
        return OptionList{{QStringLiteral("Width"), inPoints(sides[0], unit)},
                          {QStringLiteral("Height"), inPoints(last, unit)}};
    }
    if (parameters.size() != 1)
        return {};
    return OptionList{{QString::fromUtf8(parameters[0].name), value}};
}

/// @return why a parameter can't have a value; null once it has it
QString put(CustomParameter &parameter, QString value) {
    if (parameter.type == PPD_CUSTOM_POINTS)
        value = inPoints(value);
    const QString problem = value.isNull()
                                ? HostWords::tr("“%1” can't have such a value.").arg(parameter.text)
                                : problemOf(parameter, value);
    if (problem.isNull())
        parameter.value = parameter.isText() ? value : nearestValue(parameter, value.toDouble());
    return problem;
}

} // namespace

QString plainText(const QJsonValue &value) {
    if (value.isBool())
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    if (value.isString())
        return value.toString().isEmpty() ? QStringLiteral("") : value.toString();
    if (!value.isDouble())
        return {};
    const double number = value.toDouble();
    constexpr double kMostExact = 1e15;
    return number == std::floor(number) && std::abs(number) < kMostExact
               ? QString::number(qint64(number))
               : QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QString customChoice(ppd_file_t *ppd, const ppd_option_t &option, const QJsonValue &given,
                     QString *why) {
    QList<CustomParameter> parameters = customParameters(ppd, QString::fromUtf8(option.keyword));
    if (parameters.isEmpty()) {
        *why = HostWords::tr("This option takes no values of one's own.");
        return {};
    }
    const std::optional<OptionList> values = valuesOf(option, given, parameters);
    if (!values) {
        *why = HostWords::tr("This option takes several values, each by its name.");
        return {};
    }
    for (const auto &[name, value] : *values) {
        const auto parameter = std::find_if(
            parameters.begin(), parameters.end(), [&name = name](const CustomParameter &p) {
                return name.compare(QString::fromUtf8(p.name), Qt::CaseInsensitive) == 0;
            });
        *why = parameter == parameters.end()
                   ? HostWords::tr("This option has no value of such a name.")
                   : put(*parameter, value);
        if (!why->isNull())
            return {};
    }
    return customChoice(option, parameters);
}

} // namespace host
