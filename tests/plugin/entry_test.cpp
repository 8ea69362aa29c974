#include "plugin_fixture.h"

#include "support/text_bundle.h"

#include <QTemporaryDir>

namespace {

class EntryTest : public PluginTest {};

PpdPtr ppdWith(const QByteArray &attribute) {
    return openPpdText(attribute.isNull() ? QByteArray()
                                          : "*QZXImageOptionsSettings: \"" + attribute + "\"\n");
}

TEST_F(EntryTest, TypeAttributeAndResourcesAreAGate) {
    struct Row {
        const char *what;
        QByteArray attribute;
        bool panel;
    };
    const Row rows[] = {
        {"layout and help exist", "Default00-MVO530", true},
        {"no attribute", QByteArray(), false},
        {"no hyphen", "Default00", false},
        {"no such help", "Default00-Nowhere", false},
        {"no such layout", "Default77-MVO530", false},
        {"empty nib part", "-MVO530", false},
        {"empty help part", "Default00-", false},
        {"another case", "default00-MVO530", false},
        {"path out of the bundle", "../Default00-MVO530", false},
    };
    for (const Row &row : rows) {
        const PpdPtr ppd = ppdWith(row.attribute);
        EXPECT_EQ(panels(ppd.get()).size(), row.panel ? 1u : 0u) << row.what;
    }
    const PpdPtr ppd = ppdWith("Default00-MVO530");
    EXPECT_TRUE(panels(ppd.get(), kType.toLower()).empty());
    EXPECT_TRUE(panels(nullptr).empty());
    EXPECT_TRUE(plugin.PDEPanelsForType(kType, nullptr).empty());
}

TEST_F(EntryTest, FirstBundleWins) {
    const std::shared_ptr<Bundle> before = pluginBundle;
    EXPECT_TRUE(plugin.initWithBundle(nullptr));
    const TextBundle other;
    EXPECT_TRUE(plugin.initWithBundle(Bundle::withIdentifier(other->identifier())));
    EXPECT_EQ(pluginBundle, before);
}

TEST_F(EntryTest, LayoutTypeOutOfRangeIsTheFirst) {
    ImageOptionsPDEk27 panel;
    for (const auto &[type, kept] : {std::pair{4, 4}, {5, 0}, {2, 2}, {-1, 0}}) {
        panel.setPDEType(type);
        EXPECT_EQ(panel.getPDEType(), kept);
    }
    const PpdPtr noRow =
        ppdWith("ColorBalance-MVO530"); // a form of the bundle, no product's layout
    const auto unknown = panels(noRow.get());
    ASSERT_EQ(unknown.size(), 1u);
    EXPECT_EQ(dynamic_cast<ImageOptionsPDEk27 &>(*unknown[0]).getPDEType(), 0);
    panel.setPDEType(4);
    EXPECT_STREQ(panel.getPDENibFileNamePrintType(), "QZImageOptions_Sorvani00");
    for (int32_t row = 0; row < panel.getProductInfoCont(); ++row)
        EXPECT_EQ(panel.getProductInfoPtr()[row].pdeType, row);
}

} // namespace
