#pragma once

#include <array>
#include <cstdint>

/// A layout of the main panel. A row's pdeType equals its index in the table.
struct ProductInfo {
    const char *name; ///< the nib part of the PPD attribute that selects the layout
    int32_t pdeType;
    const char *nib; ///< the layout file's name without its ending
};

inline constexpr std::array<ProductInfo, 5> kProductInfo{{
    {"Default00", 0, "QZImageOptions_Default00"},
    {"Default01", 1, "QZImageOptions_Default01"},
    {"Default02", 2, "QZImageOptions_Default02"},
    {"Default03", 3, "QZImageOptions_Default03"},
    {"Sorvani00", 4, "QZImageOptions_Sorvani00"},
}};
