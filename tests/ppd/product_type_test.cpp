#include "ppd/product_type.h"

#include "ppd/ppd_keys.h"

#include <gtest/gtest.h>

#include <set>

TEST(ProductType, OnlyAnExactPatternMatches) {
    const std::set<std::string> type01{kPPDRGBColorCorrectionKey, kPPDCMYKColorCorrectionKey,
                                       kPPDRGBInputProfileKey, kPPDColorTemperatureKey,
                                       kPPDTargetPaperKey};
    const struct {
        std::set<std::string> missing;
        int type; ///< -1 for no match
    } cases[] = {
        {{}, 5},
        {{kPPDTargetPaperKey}, 4},
        {{kPPDTargetPaperKey, kPPDCMYKColorCorrectionKey}, 2},
        {type01, 1},
        {{kPPDCMYKColorCorrectionKey}, -1},
        {{kPPDColorDensityYellowHighKey}, -1},
        {{kPPDRGBColorCorrectionKey, kPPDCMYKColorCorrectionKey, kPPDRGBInputProfileKey,
          kPPDTargetPaperKey},
         -1}, // one more than type 1
    };
    CPPDChecker *checker = CPPDChecker::Instance();
    EXPECT_EQ(checker, CPPDChecker::Instance());
    for (const auto &test : cases) {
        checker->Init();
        for (const char *const *key = arrayAllKeys; *key; ++key)
            EXPECT_TRUE(checker->AddCheck(*key, !test.missing.contains(*key)));
        EXPECT_TRUE(checker->AddCheck(kPPDBlackOverPrintKey, true)); // not among the checked
        EXPECT_EQ(checker->checks.size(), 24u);
        EXPECT_EQ(checker->RunCheck(), test.type != -1);
        EXPECT_EQ(checker->productType, test.type);
    }
    checker->Init();
    EXPECT_FALSE(checker->RunCheck()); // no reports
    for (const char *const *key = arrayAllKeys; *key; ++key)
        checker->AddCheck(*key, true);
    EXPECT_TRUE(checker->RunCheck());
    checker->AddCheck(kPPDScreenKey, false);
    EXPECT_FALSE(checker->RunCheck());
    EXPECT_EQ(checker->productType, 5); // a miss leaves the result
}
