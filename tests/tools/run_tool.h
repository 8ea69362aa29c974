#pragma once

#include "support/ppd_text.h"
#include "support/run_program.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// Shows a text in a test's message.
inline void PrintTo(const QByteArray &text, std::ostream *out) {
    *out << text.constData();
}

/// A folder in which cdf-tool is run, with a small PPD in it.
///
/// "a.ppd" has, in group 0, the options 0 QZColorMode (None, X, Y) and 1 QZOutputMode (None, P, Q).
struct ToolTest : testing::Test {
    using Run = ProgramRun;

    static inline const QByteArray kStamp = "*% Last Edit Date: today";
    static inline const QByteArray kPpd =
        "*PPD-Adobe: \"4.3\"\n" + kStamp +
        "\n*FormatVersion: \"4.3\"\n*FileVersion: \"1\"\n*LanguageVersion: English\n"
        "*LanguageEncoding: ISOLatin1\n*PCFileName: \"A.PPD\"\n*Manufacturer: \"QZ\"\n"
        "*Product: \"(A)\"\n*ModelName: \"A\"\n*ShortNickName: \"A\"\n*NickName: \"A\"\n"
        "*OpenGroup: G/Group\n" +
        ppdOption("QZColorMode", {"None", "X", "Y"}, {}, "Gr\xf6\xdf\x65") +
        ppdOption("QZOutputMode", {"None", "P", "Q"}, {}, "Mode") +
        "*CloseGroup: G\n"
        "*UIConstraints: *QZColorMode X *QZOutputMode\n"
        "*UIConstraints: *QZOutputMode P *QZColorMode Y\n"
        "*UIConstraints: *QZOutputMode P *QZColorMode Y\n";
    /// The entry line of a section for it.
    static inline const QByteArray kEntries = "QZColorMode:Y@0@1@1@QZColorMode:Y@0@1@1@"
                                              "QZOutputMode:P@0@0@1@QZOutputMode:Q@0@0@1@\n";

    ToolTest() { write("a.ppd", kPpd); }
    Run run(const QStringList &arguments) const {
        return runProgram(QStringLiteral(CDF_TOOL), arguments, folder.path());
    }
    void write(const QString &name, const QByteArray &content) const {
        EXPECT_FALSE(writeFile(folder.path(), name, content).isNull());
    }
    QByteArray read(const QString &name) const { return readFile(folder.filePath(name)); }
    QStringList files() const {
        return QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
    }

    QTemporaryDir folder;
};
