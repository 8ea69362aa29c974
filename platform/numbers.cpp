#include "platform/numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <locale.h>

int32_t truncatedToInt(double value) {
    constexpr double low = INT32_MIN, high = INT32_MAX;
    return std::isnan(value) ? 0 : static_cast<int32_t>(std::clamp(value, low, high));
}

int32_t leadingInteger(const char *text) {
    return static_cast<int32_t>(
        std::clamp<long>(std::strtol(text, nullptr, 10), INT32_MIN, INT32_MAX));
}

int32_t leadingInteger(const QString &text) {
    return leadingInteger(text.toUtf8().constData());
}

double leadingDouble(const char *text) {
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text, nullptr, plain);
}
