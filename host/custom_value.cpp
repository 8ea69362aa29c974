#include "host/custom_value.h"

#include <QStringList>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace host {
namespace {

bool isPageSize(const ppd_option_t &option) {
    return !qstricmp(option.keyword, "PageSize") || !qstricmp(option.keyword, "PageRegion");
}

bool isSecret(const ppd_cparam_t &parameter) {
    return parameter.type == PPD_CUSTOM_PASSCODE || parameter.type == PPD_CUSTOM_PASSWORD;
}

bool isText(const ppd_cparam_t &parameter) {
    return isSecret(parameter) || parameter.type == PPD_CUSTOM_STRING;
}

/// The shortest text that reads as the same number; "." whatever the locale is.
QString numberText(float number) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return QString::fromLatin1(text, end - text);
}

QString valueText(const ppd_cparam_t &parameter) {
    if (isText(parameter))
        return QString::fromUtf8(parameter.current.custom_string);
    // The other members of the union are all of one type.
    return parameter.type == PPD_CUSTOM_INT ? QString::number(parameter.current.custom_int)
                                            : numberText(parameter.current.custom_real);
}

/// Quotes a text as cupsParseOptions reads it.
QString quoted(QString text) {
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return u'\'' + text + u'\'';
}

template <typename Do>
void eachParameter(ppd_file_t *ppd, const ppd_option_t &option, Do act) {
    ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
    for (ppd_cparam_t *p = custom ? ppdFirstCustomParam(custom) : nullptr; p;
         p = ppdNextCustomParam(custom))
        act(*p);
}

bool isWithin(double value, double least, double greatest) {
    constexpr double kSlack = 0.01; // limits and values were rounded to single precision
    return value >= least - kSlack && value <= greatest + kSlack;
}

bool fits(const ppd_cparam_t &p) {
    const char *text = isText(p) ? p.current.custom_string : nullptr;
    // libcups writes a backslash into PostScript as it is, where it takes what is behind it along.
    const bool isSafe = !text || std::none_of(text, text + std::strlen(text), [](char c) {
        return c == '\\' || (c > 0 && c < ' ') || c == '\x7f';
    });
    if (!isSafe || isSecret(p))
        return isSafe;
    if (isText(p)) {
        return isWithin(text ? double(std::strlen(text)) : 0, p.minimum.custom_string,
                        p.maximum.custom_string);
    }
    if (p.type == PPD_CUSTOM_INT)
        return p.current.custom_int >= p.minimum.custom_int &&
               p.current.custom_int <= p.maximum.custom_int;
    return isWithin(p.current.custom_real, p.minimum.custom_real, p.maximum.custom_real);
}

} // namespace

CustomValue customValueOf(ppd_file_t *ppd, const ppd_option_t &option, Secrets secrets) {
    CustomValue value;
    if (isPageSize(option)) {
        const ppd_size_t *size = ppdPageSize(ppd, "Custom");
        value.text = size ? QStringLiteral("Custom.%1x%2")
                                .arg(numberText(size->width), numberText(size->length))
                          : QString();
        return value;
    }
    QStringList named;
    QString only;
    int count = 0;
    eachParameter(ppd, option, [&](const ppd_cparam_t &p) {
        ++count;
        value.hasSecret |= isSecret(p);
        value.lacksSecret |= isSecret(p) && valueText(p).isEmpty();
        if (isSecret(p) && secrets == Secrets::Without)
            return;
        only = valueText(p);
        named.append(QString::fromUtf8(p.name) + u'=' + (isText(p) ? quoted(only) : only));
    });
    if (!named.isEmpty())
        value.text = count == 1 ? QStringLiteral("Custom.") + only : u'{' + named.join(u' ') + u'}';
    return value;
}

bool customValueFits(ppd_file_t *ppd, const ppd_option_t &option) {
    if (isPageSize(option)) {
        const ppd_size_t *size = ppdPageSize(ppd, "Custom");
        return size && isWithin(size->width, ppd->custom_min[0], ppd->custom_max[0]) &&
               isWithin(size->length, ppd->custom_min[1], ppd->custom_max[1]);
    }
    bool all = true;
    eachParameter(ppd, option, [&](const ppd_cparam_t &p) { all = all && fits(p); });
    return all;
}

} // namespace host
