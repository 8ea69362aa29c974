#pragma once

#include "platform/bundle.h"
#include "plugin/image_options_pde.h"
#include "plugin/image_options_plugin.h"
#include "services/bundle_identity.h"
#include "support/ppd_text.h"
#include "support/test_host.h"

#include <gtest/gtest.h>

inline const QString kType = QString::fromLatin1(kPrintPanelType);

/// The plug-in with the built bundle.
class PluginTest : public testing::Test {
protected:
    void SetUp() override {
        QString error;
        const std::shared_ptr<Bundle> bundle = Bundle::open(QStringLiteral(BUNDLE_DIR), &error);
        ASSERT_TRUE(bundle) << error.toStdString();
        ASSERT_TRUE(plugin.initWithBundle(bundle));
    }
    std::vector<std::unique_ptr<PDEPanel>> panels(ppd_file_t *ppd, const QString &type = kType) {
        host = std::make_shared<TestHost>(ppd);
        return plugin.PDEPanelsForType(type, host);
    }

    ImageOptionsPDEPlugink27 plugin;
    std::shared_ptr<TestHost> host;
};
