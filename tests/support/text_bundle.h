#pragma once

#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A bundle with a version, and with the text of "Known" alone, another in each of two tables.
/// Every other text is the fallback.
class TextBundle {
public:
    TextBundle() {
        QDir(m_folder.path()).mkpath("Resources");
        QFile info(m_folder.filePath("Info.json"));
        EXPECT_TRUE(info.open(QIODevice::WriteOnly));
        info.write(R"({"CFBundleIdentifier": "test.text", "CFBundleVersion": "2.5 Build 7"})");
        info.close();
        writeTable("Localizable", "default text");
        writeTable("Localizable01", "indexed text");
        m_bundle = Bundle::open(m_folder.path());
        EXPECT_TRUE(m_bundle);
    }
    const Bundle *get() const { return m_bundle.get(); }
    const Bundle *operator->() const { return m_bundle.get(); }

private:
    void writeTable(const QString &name, const QByteArray &text) const {
        QFile source(m_folder.filePath(name + ".ts"));
        EXPECT_TRUE(source.open(QIODevice::WriteOnly));
        source.write("<!DOCTYPE TS><TS version=\"2.1\"><context><name>Localizable</name><message>"
                     "<source>Known</source><translation>" +
                     text + "</translation></message></context></TS>");
        source.close();
        EXPECT_EQ(0, QProcess::execute(LRELEASE_PROGRAM,
                                       {"-silent", source.fileName(), "-qm",
                                        m_folder.filePath("Resources/" + name + "_en.qm")}));
    }

    QTemporaryDir m_folder;
    std::shared_ptr<Bundle> m_bundle;
};
