#pragma once

#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A bundle without any string, so that every localised text is the fallback.
class TextlessBundle {
public:
    TextlessBundle() {
        QDir(m_folder.path()).mkpath("Resources");
        QFile info(m_folder.filePath("Info.json"));
        EXPECT_TRUE(info.open(QIODevice::WriteOnly));
        info.write(R"({"CFBundleIdentifier": "test.textless"})");
        info.close();
        m_bundle = Bundle::open(m_folder.path());
        EXPECT_TRUE(m_bundle);
    }
    const Bundle *get() const { return m_bundle.get(); }

private:
    QTemporaryDir m_folder;
    std::shared_ptr<Bundle> m_bundle;
};
