#include "ppd/unit_utils.h"

#include "platform/numbers.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr float kCentimetresPerInch = 2.54F;
constexpr double kMillimetresPerInch = 25.4;
constexpr qsizetype kReadBytes = 32;  // of a text with millimetres
constexpr qsizetype kPointBytes = 30; // of these, where a point is looked for

/// The start of a text with its first point taken out, and what the number then lacks to tenths.
struct Tenths {
    QByteArray digits;
    int factor = 10;

    explicit Tenths(const QString &text) : digits(text.toUtf8().left(kReadBytes)) {
        const qsizetype point = digits.left(kPointBytes).indexOf('.');
        if (point >= 0) {
            digits.remove(point, 1);
            factor = 1;
        }
    }
};

} // namespace

int TransformPointByType(char *out, int points, int decimals, int type) {
    if (type != 0 && type != 1)
        return -1;
    const double scaled = points * std::pow(10.0, std::max(decimals, 0));
    int result;
    if (type == 0)
        result = truncatedToInt(scaled / UnitsPerInch + 0.5);
    else
        result = truncatedToInt(scaled * kMillimetresPerInch / UnitsPerInch + 5.0) / 10 * 10;
    if (out) {
        std::string text = std::to_string(result);
        if (decimals > 0)
            text.insert(text.size() - std::min<size_t>(decimals, text.size()), ".");
        std::memcpy(out, text.c_str(), text.size() + 1);
    }
    return result;
}

QString TransformMillimetreToInchs(const QString &millimetres) {
    if (millimetres.isNull())
        return QString();
    const Tenths tenths(millimetres);
    const double value = leadingDouble(tenths.digits.constData()) * tenths.factor;
    const int x = truncatedToInt(std::rint(value / kCentimetresPerInch));
    return QString::asprintf("%d.%d%d", std::abs(x / 100), std::abs(x % 100 / 10),
                             std::abs(x % 10));
}

int GetMillimetreFromStr(const QString &text) {
    if (text.isNull())
        return 0;
    const Tenths tenths(text);
    return static_cast<int>(std::atoi(tenths.digits.constData()) * int64_t(tenths.factor));
}
