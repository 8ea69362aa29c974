#include "ppd/product_type.h"

#include "ppd/ppd_keys.h"

const char *const arrayAllKeys[] = {
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDRGBColorCorrectionKey,
    kPPDCMYKColorCorrectionKey,
    kPPDScreenKey,
    kPPDRGBInputProfileKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorTemperatureKey,
    kPPDTargetPaperKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    nullptr,
};

const char *const arrayType00_1Keys[] = {
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDScreenKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    nullptr,
};

const char *const arrayType00_2Keys[] = {
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDRGBColorCorrectionKey,
    kPPDScreenKey,
    kPPDRGBInputProfileKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorTemperatureKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    nullptr,
};

const char *const arrayType02Keys[] = {
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDRGBColorCorrectionKey,
    kPPDCMYKColorCorrectionKey,
    kPPDScreenKey,
    kPPDRGBInputProfileKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorTemperatureKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    nullptr,
};

const char *const arrayType03Keys[] = {
    kPPDColorModeKey,
    kPPDOutputModeKey,
    kPPDBrightnessKey,
    kPPDImageTypeKey,
    kPPDRGBColorCorrectionKey,
    kPPDCMYKColorCorrectionKey,
    kPPDScreenKey,
    kPPDRGBInputProfileKey,
    kPPDRGBGammaCorrectionKey,
    kPPDColorTemperatureKey,
    kPPDTargetPaperKey,
    kPPDColorBalanceAdjustmentKey,
    kPPDColorDensityBlackLowKey,
    kPPDColorDensityCyanLowKey,
    kPPDColorDensityMagentaLowKey,
    kPPDColorDensityYellowLowKey,
    kPPDColorDensityBlackMidKey,
    kPPDColorDensityCyanMidKey,
    kPPDColorDensityMagentaMidKey,
    kPPDColorDensityYellowMidKey,
    kPPDColorDensityBlackHighKey,
    kPPDColorDensityCyanHighKey,
    kPPDColorDensityMagentaHighKey,
    kPPDColorDensityYellowHighKey,
    nullptr,
};

// Type 3, "Type01", is in the list's menu alone: nothing detects it.
const ProductTypeList graphicsPTList[] = {
    {arrayType00_1Keys, 1}, {arrayType00_2Keys, 2}, {arrayType02Keys, 4},
    {arrayType03Keys, 5},   {nullptr, 0},
};

static CPPDChecker checker(arrayAllKeys, graphicsPTList);

CPPDChecker *CPPDChecker::Instance() {
    return &checker;
}

CPPDChecker::CPPDChecker(const char *const *allKeys, const ProductTypeList *list) {
    for (; allKeys && *allKeys; ++allKeys)
        checks.emplace(*allKeys, false);
    for (; list->keys; ++list) {
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
