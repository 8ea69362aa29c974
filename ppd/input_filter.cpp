#include "ppd/input_filter.h"

#include <algorithm>
#include <string_view>

namespace {

template <typename Code>
bool inRanges(const Code *code, const InputFilterData *filter) {
    if (!code || !filter)
        return false;
    const auto *first = filter->ranges;
    const auto *last = first + std::clamp<int>(filter->rangeCount, 0, std::size(filter->ranges));
    return std::any_of(first, last, [c = *code](const InputFilterData::Range &range) {
        if constexpr (sizeof(Code) == 1)
            return Code(range.low) <= c && c <= Code(range.high);
        else
            return range.low <= c && c <= range.high;
    });
}

} // namespace

bool ISWordValid(const unsigned short *unit, const InputFilterData *filter) {
    return inRanges(unit, filter);
}

bool ISWordSpace(const unsigned short *unit, const InputFilterData *filter) {
    return inRanges(unit, filter);
}

bool ISByteValid(const char *byte, const InputFilterData *filter) {
    return inRanges(reinterpret_cast<const unsigned char *>(byte), filter);
}

bool validateInput(const QString &text, const TextEditFilterData *filter) {
    return std::all_of(text.cbegin(), text.cend(), [filter](QChar c) {
        const unsigned short unit = c.unicode();
        return filter && ISWordValid(&unit, &filter->filterValid);
    });
}

bool validateDensityInput(const char *text, const TextEditFilterData *filter) {
    const std::string_view bytes(text ? text : "");
    return std::all_of(bytes.cbegin(), bytes.cend(), [filter](char c) {
        return filter && ISByteValid(&c, &filter->filterFirst);
    });
}
