#pragma once

#include "platform/bundle.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A bundle's folder that is gone after the test.
class TemporaryBundle {
public:
    explicit TemporaryBundle(const QByteArray &info) { write("Info.json", info); }

    void write(const QString &file, const QByteArray &content) const {
        QDir(m_folder.path()).mkpath(QFileInfo(file).path());
        QFile out(m_folder.filePath(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }
    /// Compiles a strings table with the text of "Title".
    void writeTable(const QString &name, const QByteArray &text) const {
        write("table.ts",
              "<!DOCTYPE TS><TS version=\"2.1\" language=\"de\"><context><name>Localizable"
              "</name><message><source>Title</source><translation>" +
                  text + "</translation></message></context></TS>");
        write("Resources/" + name, "");
        ASSERT_EQ(0, QProcess::execute(LRELEASE_PROGRAM, {"-silent", path("table.ts"), "-qm",
                                                          path("Resources/" + name)}));
    }
    QString path(const QString &file = {}) const {
        return QDir::cleanPath(QDir(m_folder.path()).canonicalPath() + '/' + file);
    }

private:
    QTemporaryDir m_folder;
};
