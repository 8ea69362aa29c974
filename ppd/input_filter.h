#pragma once

#include <QString>

#include <cstdint>

/// Which character codes may be typed: the first `rangeCount` of up to twenty ranges, both ends
/// included. A count below 1 lets nothing pass, one above 20 counts as 20.
struct InputFilterData {
    int32_t rangeCount = 0;
    struct Range {
        int32_t low, high;
    } ranges[20] = {};
};

/// The filters of one text field.
struct TextEditFilterData {
    InputFilterData filterFirst;    ///< by byte, for validateDensityInput
    InputFilterData filterValid;    ///< by UTF-16 unit, for validateInput
    const char *errorKey = nullptr; ///< strings key of the message on refusal; null for no message
};

/// @return whether the unit lies in a range of the filter; false for a null argument
bool ISWordValid(const unsigned short *unit, const InputFilterData *filter);
/// The same test, named for filters that list blanks.
bool ISWordSpace(const unsigned short *unit, const InputFilterData *filter);
/// The test for one byte, taken as unsigned, against the lowest byte of each end of a range.
bool ISByteValid(const char *byte, const InputFilterData *filter);

/// @return whether every UTF-16 unit passes `filterValid`; true for an empty or null text, false
///         for a text with characters and a null filter
bool validateInput(const QString &text, const TextEditFilterData *filter);
/// @return whether every byte before the NUL passes `filterFirst`; null arguments as above
bool validateDensityInput(const char *text, const TextEditFilterData *filter);
