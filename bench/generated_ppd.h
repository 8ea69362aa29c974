#pragma once

#include <cstdint>
#include <string>

/// The kinds of constraints in a generated PPD.
enum class Rules {
    Full,      ///< each names both choices
    Wildcards, ///< each tenth leaves the second choice out
    Cached,    ///< as Full, and the PPD names a cache file with the same table
};

/// The sizes that are measured.
inline constexpr int64_t kSizes[] = {100, 1000, 10000, 100000};

/// The sample MVO-530 with so many constraints between choices of the panel's options that aren't
/// defaults: the defaults forbid nothing. Written once for each pair, in a folder of this run.
/// @return the file's path
std::string generatedPpd(int64_t constraints, Rules rules = Rules::Full);
/// A PPD whose 1,000 constraints name two options of 300 choices without any choice.
std::string wildcardPpd();
