#include "ppd/product_type.h"

#include "ppd/ppd_keys.h"

#include <gtest/gtest.h>

#include <set>

TEST(ProductType, OnlyAnExactPatternMatches) {
    using Keys = std::set<std::string>;
    const Keys type01{kPPDRGBColorCorrectionKey, kPPDCMYKColorCorrectionKey, kPPDRGBInputProfileKey,
                      kPPDColorTemperatureKey, kPPDTargetPaperKey};
    // The keys that are missing, and the type; -1 for no match.
    // clang-format off
    const std::pair<Keys, int> cases[] = {
        {{}, 5}, {{kPPDTargetPaperKey}, 4}, {type01, 1}, {{kPPDColorDensityYellowHighKey}, -1},
        {{kPPDTargetPaperKey, kPPDCMYKColorCorrectionKey}, 2},
        {Keys(type01.begin(), std::prev(type01.end())), -1}};
    // clang-format on
    CPPDChecker *checker = CPPDChecker::Instance();
    for (const auto &[missing, type] : cases) {
        checker->Init();
        for (const char *const *key = arrayAllKeys; *key; ++key)
            EXPECT_TRUE(checker->AddCheck(*key, !missing.contains(*key)));
        EXPECT_TRUE(checker->AddCheck(kPPDBlackOverPrintKey, true)); // not among the checked
        EXPECT_EQ(checker->RunCheck(), type != -1);
        EXPECT_EQ(checker->productType, type);
    }
    checker->productType = 4;
    EXPECT_FALSE(checker->RunCheck()); // the last row's reports still match nothing
    EXPECT_EQ(checker->productType, 4);
}
