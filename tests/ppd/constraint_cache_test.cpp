#include "ppd/constraint_cache.h"

#include "entries.h"
#include "platform/kernel_release.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_table.h"
#include "support/ppd_text.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include <sys/stat.h>

namespace {

const QByteArray kOptions =
    ppdOption("QZColorMode", {"None", "X", "Y"}) + ppdOption("QZOutputMode", {"None", "P", "Q"});
const QByteArray kConstraints = "*UIConstraints: *QZColorMode *QZOutputMode\n"
                                "*UIConstraints: *QZOutputMode P *QZColorMode Y\n"
                                "*UIConstraints: *QZOutputMode P *QZColorMode Y\n";

struct ConstraintCache : testing::Test {
    QTemporaryDir folder;
    QString path() const { return folder.filePath("cache.cdf"); }
    QString write(const QByteArray &text, const QString &name = "cache.cdf") {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    /// A PPD that names the file.
    PpdPtr ppdFor(const QString &path) {
        return openPpdText("*QZXCDFSetting: \"" + path.toUtf8() + "\"\n" + kOptions + kConstraints);
    }
    int32_t read(const PpdPtr &ppd, hash_multimap &table) {
        return GetXPPD(ppd.get(), &table, "ImageOptionPDE", "QZXCDFSetting");
    }
    ~ConstraintCache() override { setKernelRelease("19.6.0"); }
};

} // namespace

TEST_F(ConstraintCache, ReadsWhatASectionHolds) {
    const struct {
        QByteArray file;
        std::string entries;
    } cases[] = {
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@0@2@\nOther\nC:z@0@0@0@\n", "A:x@0@3@1 B:y@1@0@2"},
        {"Other\nC:z@0@0@0@\nImageOptionPDETiger\nA:x@0@3@1@\n", "A:x@0@3@1"},
        {"ImageOptionPDETiger\nA:x@0@3@1@\nImageOptionPDETiger\nB:y@1@0@2@\n", "A:x@0@3@1"},
        {"ImageOptionPDETiger\r\nA:x@0@3@1@\n", ""},
        {"imageoptionpdetiger\nA:x@0@3@1@\n", ""},
        {"ImageOptionPDETiger", ""},
        {"ImageOptionPDETiger\n\nA:x@0@3@1@\n", ""},
        {"", ""},
        {"ImageOptionPDETiger\n@0@3@1@A:x@0@3@1@\n", "A:x@0@3@1"}, // no key, no entry
        {"ImageOptionPDETiger\nA:x@a@65537@-1@A:x@ 2@3b@@\n", "A:x@0@1@65535 A:x@2@3@0"},
        {"ImageOptionPDETiger\nA:x@99999999999999999999@0@1@", "A:x@65535@0@1"},
        // Cut off: a rest without "@" ends the reading, an entry that ends early has zeros.
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@0", "A:x@0@3@1"},
        {"ImageOptionPDETiger\nA:x@0@3@1@\r\n", "A:x@0@3@1"},
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@", "A:x@0@3@1 B:y@1@0@0"},
    };
    const PpdPtr ppd = ppdFor(path());
    ASSERT_TRUE(ppd);
    for (const auto &test : cases) {
        write(test.file);
        hash_multimap table;
        EXPECT_EQ(read(ppd, table), 0);
        EXPECT_EQ(entries(table), test.entries) << test.file.toStdString();
    }
}

TEST_F(ConstraintCache, TakesTheSectionOfTheSystemVersion) {
    const PpdPtr ppd =
        ppdFor(write("ImageOptionPDETiger\nT:t@0@0@0@\nImageOptionPDEPanther\nP:p@0@0@0@\n"));
    ASSERT_TRUE(ppd);
    for (const auto &[release, expected] :
         std::map<std::string, std::string>{{"6.8.0", "T:t@0@0@0"}, // 0x102x
                                            {"7.9.0", "P:p@0@0@0"}, // 0x103x
                                            {"8.0.0", "T:t@0@0@0"}, // 0x104x
                                            {"19.6.0", "T:t@0@0@0"}}) {
        setKernelRelease(release);
        hash_multimap table;
        EXPECT_EQ(read(ppd, table), 0);
        EXPECT_EQ(entries(table), expected) << release;
    }
}

TEST_F(ConstraintCache, WhatIsNoRegularFileIsUnreadable) {
    const QString fifo = folder.filePath("fifo");
    ASSERT_EQ(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
    for (const QString &path : {fifo, folder.path(), folder.filePath("missing"), QString()}) {
        const PpdPtr ppd = ppdFor(path);
        ASSERT_TRUE(ppd);
        hash_multimap table;
        table.insert("A:x", {1, 2, 3});
        EXPECT_EQ(read(ppd, table), 1) << path.toStdString();
        EXPECT_EQ(entries(table), "A:x@1@2@3");
    }
    const PpdPtr ppd = openPpdText(kOptions);
    hash_multimap table;
    EXPECT_EQ(read(ppd, table), 1);
    EXPECT_EQ(GetXPPD(ppd.get(), &table, "ImageOptionPDE", "QZXCDFSettingOfALongName"), 1);
}

TEST_F(ConstraintCache, StaleAndHostileIndicesAreNoConflict) {
    const PpdPtr ppd =
        ppdFor(write("ImageOptionPDETiger\nQZColorMode:X@9@0@1@QZColorMode:X@0@65535@1@"
                     "QZColorMode:X@0@0@77@QZColorMode:X@-1@-1@-1@QZColorMode:Y@0@1@1@\n"));
    ASSERT_TRUE(ppd);
    hash_multimap table;
    ASSERT_EQ(read(ppd, table), 0);
    EXPECT_EQ(table.size(), 5u);
    ppdMarkOption(ppd.get(), "QZOutputMode", "P");
    EXPECT_FALSE(IsPPDChoiceConflicted(ppd.get(), &table, "QZColorMode", "X"));
    EXPECT_TRUE(IsPPDChoiceConflicted(ppd.get(), &table, "QZColorMode", "Y"));
}

TEST_F(ConstraintCache, WrittenSectionsReadBack) {
    const PpdPtr ppd = ppdFor(path());
    ASSERT_TRUE(ppd);
    hash_multimap fresh;
    xSetxppd(ppd.get(), &fresh);

    std::list<std::string> both{"QZColorMode", "QZOutputMode"}, none{"Other"};
    std::string tiger = strImageOptionPDETiger, panther = strImageOptionPDEPanther;
    const x_PDEConstr sections[] = {{&panther, &none}, {&tiger, &both}, {}};
    std::string ppdPath =
        write("*PPD-Adobe: \"4.3\"\r*% Last Edit Date: today\r*End\r", "cr.ppd").toStdString();
    hash_multimap table;
    CQuickXPPD writer(ppd.get(), &table, sections, &ppdPath);
    std::ostringstream out;
    out << writer;
    EXPECT_EQ(table.size(), 0u);
    EXPECT_TRUE(writer.watchKeys.empty());

    const std::string file = out.str();
    EXPECT_EQ(file.substr(0, file.find(strImageOptionPDETiger)), "ImageOptionPDEPanther\n\n");
    EXPECT_TRUE(file.ends_with("@\n*% Last Edit Date: today"));
    write(QByteArray::fromStdString(file));
    hash_multimap back;
    EXPECT_EQ(read(ppd, back), 0);
    EXPECT_EQ(back.size(), 6u);
    EXPECT_EQ(entries(back), entries(fresh));
}

TEST_F(ConstraintCache, StampIsAPieceThatEndsAtCr) {
    const struct {
        QByteArray ppd, stamp;
    } cases[] = {
        {"*A\r*% Last Edit Date: x\r*B\r", "*% Last Edit Date: x"},
        {"*A\r\n*% Last Edit Date: x\r\n*B\r\n", "\n*% Last Edit Date: x"},
        {"*A\n*% Last Edit Date: x\n*B\n", "*A\n*% Last Edit Date: x\n*B\n"},
        {"*A\r*B\r", ""}, // no stamp: ends with the file
        {"", ""},
    };
    for (const auto &test : cases) {
        std::string path = write(test.ppd, "stamped.ppd").toStdString();
        CQuickXPPD writer(nullptr, nullptr, nullptr, &path);
        std::ostringstream out;
        EXPECT_EQ(writer.SetFileStamp(out), 0);
        EXPECT_EQ(out.str(), test.stamp.toStdString());
    }
    std::string missing = folder.filePath("missing").toStdString();
    std::ostringstream out;
    CQuickXPPD writer(nullptr, nullptr, nullptr, &missing);
    out << writer;
    EXPECT_EQ(writer.SetFileHead(out, nullptr), 0);
    EXPECT_EQ(out.str(), "");
}
