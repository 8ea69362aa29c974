#include "host/settings/custom_parameters.h"

#include "host/settings/ppd_texts.h"
#include "host/words.h"
#include "platform/ppd_marks.h"
#include "platform/utf8.h"

#include <QLocale>
#include <QStringList>

#include <charconv>
#include <cmath>
#include <limits>

namespace host {
namespace {

constexpr double kGreatestNumber = 1e9;
constexpr double kGreatestLength = 1e5; // points, some 35 m
constexpr int kMostBytes = 1023;        // RFC 8011, 5.1.2: the longest text that is sent whole

/// The shortest text that reads as the same number; "." whatever the locale is.
QString numberText(double number) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, float(number)).ptr;
    return QString::fromLatin1(text, end - text);
}

struct Limits {
    double least, greatest;
};

double finite(double number, double bound) {
    return std::isnan(number) ? 0 : qBound(-bound, number, bound);
}

Limits limitsOf(const ppd_cparam_t &p) {
    switch (p.type) {
    case PPD_CUSTOM_INT:
        return {double(p.minimum.custom_int), double(p.maximum.custom_int)};
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING:
        return {double(p.minimum.custom_string), double(p.maximum.custom_string)};
    case PPD_CUSTOM_POINTS:
        return {double(p.minimum.custom_points), double(p.maximum.custom_points)};
    default:
        return {double(p.minimum.custom_real), double(p.maximum.custom_real)};
    }
}

void setLimits(CustomParameter &parameter, Limits limits) {
    if (limits.least > limits.greatest)
        std::swap(limits.least, limits.greatest);
    double least = finite(limits.least, kGreatestNumber);
    double greatest = finite(limits.greatest, kGreatestNumber);
    if (parameter.isText()) {
        greatest = greatest < 1 ? kMostBytes : qMin(greatest, double(kMostBytes));
        least = qBound(0.0, least, greatest);
    } else if (parameter.type == PPD_CUSTOM_POINTS) {
        greatest = qBound(0.0, greatest, kGreatestLength);
        least = qBound(0.0, least, greatest);
    } else if (parameter.isWholeNumber()) { // these may be wider, and stay exact
        least = qBound(double(std::numeric_limits<int>::min()), limits.least,
                       double(std::numeric_limits<int>::max()));
        greatest = qBound(least, limits.greatest, double(std::numeric_limits<int>::max()));
    }
    parameter.least = least;
    parameter.greatest = greatest;
}

/// A value that can stand; where the PPD has set none, the nearest to nothing.
QString currentValue(const CustomParameter &parameter, const ppd_cparam_t &p) {
    switch (p.type) {
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING:
        return QString::fromUtf8(p.current.custom_string);
    case PPD_CUSTOM_INT:
        return nearestValue(parameter, p.current.custom_int);
    case PPD_CUSTOM_POINTS:
        return nearestValue(parameter, double(p.current.custom_points));
    default:
        return nearestValue(parameter, double(p.current.custom_real));
    }
}

QList<CustomParameter> pageSizeParameters(ppd_file_t *ppd) {
    // The size that is marked is where a person starts from.
    const ppd_size_t *size = ppdPageSize(ppd, "Custom");
    if (!size || size->width <= 0 || size->length <= 0) {
        const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, "PageSize");
        size = ppdPageSize(ppd, marked && !isCustom(*marked) ? marked->choice : "A4");
    }
    const float given[] = {size ? size->width : 595, size ? size->length : 842};
    QList<CustomParameter> list;
    for (const int side : {0, 1}) {
        CustomParameter parameter;
        parameter.name = side == 0 ? "Width" : "Height";
        parameter.text = side == 0 ? HostWords::tr("Width") : HostWords::tr("Height");
        parameter.type = PPD_CUSTOM_POINTS;
        const float greatest = ppd->custom_max[side];
        setLimits(parameter, {double(ppd->custom_min[side]),
                              greatest > 0 ? double(greatest) : kGreatestLength});
        parameter.value = nearestValue(parameter, double(given[side]));
        list.append(parameter);
    }
    return list;
}

/// Quotes a text as cupsParseOptions reads it.
QString quoted(QString text) {
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return u'\'' + text + u'\'';
}

QString rangeProblem(const CustomParameter &parameter) {
    const QLocale locale;
    const bool isLength = parameter.type == PPD_CUSTOM_POINTS;
    return (isLength ? HostWords::tr("“%1” must be from %2 to %3 points.")
                     : HostWords::tr("“%1” must be from %2 to %3."))
        .arg(parameter.text, locale.toString(parameter.least, 'g', 10),
             locale.toString(parameter.greatest, 'g', 10));
}

QString textProblem(const CustomParameter &parameter, const QString &value) {
    const QString text = parameter.text;
    for (const QChar c : value) {
        // A backslash would reach PostScript as it is, and take what is behind it along.
        if (c.category() == QChar::Other_Control || c == u'\\')
            return HostWords::tr("“%1” has a character that can't be printed.").arg(text);
        if (parameter.type == PPD_CUSTOM_PASSCODE && (c < u'0' || c > u'9'))
            return HostWords::tr("“%1” takes digits only.").arg(text);
    }
    const qsizetype bytes = value.toUtf8().size();
    if (double(bytes) > parameter.greatest)
        return bytes == value.size()
                   ? HostWords::tr("“%1” is too long: at most %2 characters.")
                         .arg(text)
                         .arg(parameter.greatest)
                   : HostWords::tr("“%1” is too long: at most %2 characters, of which letters "
                                   "other than A to Z take several.")
                         .arg(text)
                         .arg(parameter.greatest);
    if (value.isEmpty() && parameter.least > 0)
        return HostWords::tr("“%1” is missing.").arg(text);
    if (double(bytes) < parameter.least)
        return HostWords::tr("“%1” is too short: at least %2 characters.")
            .arg(text)
            .arg(parameter.least);
    return {};
}

} // namespace

QString redacted(const QString &value) {
    return value.isEmpty() ? value : QStringLiteral("••••");
}

QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &option) {
    QList<CustomParameter> list;
    const ppd_option_t *found = findOption(ppd, option);
    if (!found || !ppdFindChoice(const_cast<ppd_option_t *>(found), "Custom"))
        return list;
    if (isPageSize(*found))
        return pageSizeParameters(ppd);
    ppd_coption_t *custom = ppdFindCustomOption(ppd, found->keyword);
    for (ppd_cparam_t *p = custom ? ppdFirstCustomParam(custom) : nullptr; p;
         p = ppdNextCustomParam(custom)) {
        CustomParameter parameter;
        parameter.name = p->name;
        parameter.text = wholeCharacters(QByteArrayView(p->text)).simplified();
        if (parameter.text.isEmpty())
            parameter.text = QString::fromUtf8(p->name);
        parameter.type = p->type;
        setLimits(parameter, limitsOf(*p));
        parameter.value = currentValue(parameter, *p);
        list.append(parameter);
    }
    return list;
}

QString nearestValue(const CustomParameter &parameter, double number) {
    const double value =
        qBound(parameter.least, std::isnan(number) ? parameter.least : number, parameter.greatest);
    if (parameter.isWholeNumber())
        return QString::number(qint64(value));
    return numberText(value);
}

QString problemOf(const CustomParameter &parameter, const QString &value) {
    if (parameter.isText())
        return textProblem(parameter, value);
    bool isNumber = false;
    const double number =
        parameter.isWholeNumber() ? double(value.toInt(&isNumber)) : value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return HostWords::tr("“%1” must be a number.").arg(parameter.text);
    // libcups has limits and values in single precision; whole numbers are exact.
    const bool fits =
        parameter.isWholeNumber()
            ? number >= parameter.least && number <= parameter.greatest
            : float(number) >= float(parameter.least) && float(number) <= float(parameter.greatest);
    return fits ? QString() : rangeProblem(parameter);
}

QString customChoice(const ppd_option_t &option, const QList<CustomParameter> &parameters) {
    if (isPageSize(option) && parameters.size() == 2)
        return QStringLiteral("Custom.") + parameters[0].value + u'x' + parameters[1].value;
    if (parameters.size() == 1)
        return QStringLiteral("Custom.") + parameters[0].value;
    QStringList pairs;
    for (const CustomParameter &parameter : parameters)
        pairs.append(QString::fromUtf8(parameter.name) + u'=' +
                     (parameter.isText() ? quoted(parameter.value) : parameter.value));
    return pairs.isEmpty() ? QStringLiteral("Custom") : u'{' + pairs.join(u' ') + u'}';
}

QString redactedChoice(const ppd_option_t &option, QList<CustomParameter> parameters) {
    for (CustomParameter &parameter : parameters)
        if (parameter.isSecret())
            parameter.value = redacted(parameter.value);
    return customChoice(option, parameters);
}

bool markCustom(ppd_file_t *ppd, const ppd_option_t &option,
                const QList<CustomParameter> &parameters) {
    return markChoice(ppd, option.keyword, customChoice(option, parameters).toUtf8().constData());
}

} // namespace host
