#include "ppd/product_type.h"

#include "ppd/panel_options.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr size_t kDetectionKeys = 24; ///< the panel's options but the two of the adjustment windows

using KeyArray = std::array<const char *, kDetectionKeys + 1>;

/// The detection keys without those left out, in their order, ended by null.
template <size_t N>
constexpr KeyArray keysWithout(const std::array<std::string_view, N> &leftOut) {
    KeyArray keys{};
    size_t count = 0;
    for (size_t i = 0; i < kDetectionKeys; ++i)
        if (std::find(leftOut.begin(), leftOut.end(), kPanelOptionKeys[i]) == leftOut.end())
            keys[count++] = kPanelOptionKeys[i];
    return keys;
}

constexpr KeyArray kAll = keysWithout(std::array<std::string_view, 0>{});
constexpr KeyArray kType00_1 = keysWithout(std::array<std::string_view, 5>{
    kPPDRGBColorCorrectionKey,
    kPPDCMYKColorCorrectionKey,
    kPPDRGBInputProfileKey,
    kPPDColorTemperatureKey,
    kPPDTargetPaperKey,
});
constexpr KeyArray kType00_2 = keysWithout(std::array<std::string_view, 2>{
    kPPDCMYKColorCorrectionKey,
    kPPDTargetPaperKey,
});
constexpr KeyArray kType02 = keysWithout(std::array<std::string_view, 1>{kPPDTargetPaperKey});

} // namespace

const char *const *const arrayAllKeys = kAll.data();
const char *const *const arrayType00_1Keys = kType00_1.data();
const char *const *const arrayType00_2Keys = kType00_2.data();
const char *const *const arrayType02Keys = kType02.data();
const char *const *const arrayType03Keys = kAll.data();

const ProductTypeList graphicsPTList[] = {
    {kType00_1.data(), 1}, {kType00_2.data(), 2}, {kType02.data(), 4},
    {kAll.data(), 5},      {nullptr, 0},
};

static CPPDChecker checker(kAll.data(), graphicsPTList);

CPPDChecker *CPPDChecker::Instance() {
    return &checker;
}

CPPDChecker::CPPDChecker(const char *const *allKeys, const ProductTypeList *list) {
    for (; allKeys && *allKeys; ++allKeys)
        checks.emplace(*allKeys, false);
    for (; list && list->keys; ++list) {
        Pattern pattern = checks;
        for (const char *const *key = list->keys; *key; ++key)
            pattern[*key] = true;
        types.emplace_back(list->type, std::move(pattern));
    }
}

void CPPDChecker::Init() {
    productType = -1;
    for (auto &[keyword, usable] : checks)
        usable = false;
}

bool CPPDChecker::AddCheck(const char *keyword, bool usable) {
    if (!keyword)
        return true;
    if (const auto check = checks.find(keyword); check != checks.end())
        check->second = usable;
    return true;
}

bool CPPDChecker::RunCheck() {
    for (const auto &[type, pattern] : types)
        if (pattern == checks) {
            productType = type;
            return true;
        }
    return false;
}
