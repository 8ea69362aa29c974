#pragma once

#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A bundle with a version and without a string: every text is the fallback.
class TextBundle {
public:
    TextBundle() {
        QDir(m_folder.path()).mkpath("Resources");
        QFile info(m_folder.filePath("Info.json"));
        EXPECT_TRUE(info.open(QIODevice::WriteOnly));
        info.write(R"({"CFBundleIdentifier": "test.text", "CFBundleVersion": "2.5 Build 7"})");
        info.close();
        m_bundle = Bundle::open(m_folder.path());
        EXPECT_TRUE(m_bundle);
    }
    const Bundle *get() const { return m_bundle.get(); }
    const Bundle *operator->() const { return m_bundle.get(); }

private:
    QTemporaryDir m_folder;
    std::shared_ptr<Bundle> m_bundle;
};
