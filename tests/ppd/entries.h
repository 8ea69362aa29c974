#pragma once

#include "ppd/hash_multimap.h"

#include <string>
#include <vector>

/// "key@group@option@choice" for each entry of the table, sorted and joined by blanks.
inline std::string entries(const hash_multimap &table) {
    std::vector<std::string> lines;
    table.forEach([&](std::string_view key, x_constraints v) {
        lines.push_back(std::string(key) + '@' + std::to_string(v.groupIndex) + '@' +
                        std::to_string(v.optionIndex) + '@' + std::to_string(v.choiceIndex));
    });
    std::ranges::sort(lines);
    std::string joined;
    for (const std::string &line : lines)
        joined += (joined.empty() ? "" : " ") + line;
    return joined;
}
