#pragma once

#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A bundle's folder that is gone after the test.
class TemporaryBundle {
public:
    explicit TemporaryBundle(const QByteArray &info) { write("Info.json", info); }

    void write(const QString &file, const QByteArray &content) const {
        const QString path = m_folder.filePath(file);
        QDir().mkpath(QFileInfo(path).path());
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(content);
    }
    /// Compiles a strings table with one text.
    void writeTable(const QString &name, const QByteArray &key, const QByteArray &text) const {
        write(name + ".ts", "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                            "<TS version=\"2.1\" language=\"de\"><context><name>Localizable</name>"
                            "<message><source>" +
                                key + "</source><translation>" + text +
                                "</translation></message></context></TS>");
        QDir().mkpath(m_folder.filePath("Resources"));
        ASSERT_EQ(0, QProcess::execute(LRELEASE_PROGRAM,
                                       {"-silent", m_folder.filePath(name + ".ts"), "-qm",
                                        m_folder.filePath("Resources/" + name + ".qm")}));
    }
    QString path(const QString &file = {}) const {
        const QString root = QDir(m_folder.path()).canonicalPath();
        return file.isEmpty() ? root : root + '/' + file;
    }

private:
    QTemporaryDir m_folder;
};
