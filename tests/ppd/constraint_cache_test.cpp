#include "ppd/constraint_cache.h"

#include "entries.h"
#include "platform/kernel_release.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_table.h"
#include "support/ppd_text.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>

#include <sys/stat.h>

struct ConstraintCache : testing::Test {
    QTemporaryDir folder;
    PpdPtr ppd = ppdFor(folder.filePath("cache.cdf"));

    std::string write(const QByteArray &text, const QString &name = "cache.cdf") {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName().toStdString();
    }
    /// A PPD that names the file.
    static PpdPtr ppdFor(const QString &path) {
        return openPpdText("*QZXCDFSetting: \"" + path.toUtf8() + "\"\n" +
                           ppdOption("QZColorMode", {"None", "X", "Y"}) +
                           ppdOption("QZOutputMode", {"None", "P", "Q"}) +
                           "*UIConstraints: *QZColorMode *QZOutputMode\n"
                           "*UIConstraints: *QZOutputMode P *QZColorMode Y\n"
                           "*UIConstraints: *QZOutputMode P *QZColorMode Y\n");
    }
    /// The entries that the reading adds.
    std::string read(int32_t status = 0) {
        hash_multimap table;
        EXPECT_EQ(GetXPPD(ppd.get(), &table, "ImageOptionPDE", "QZXCDFSetting"), status);
        return entries(table);
    }
    ~ConstraintCache() override { setKernelRelease("19.6.0"); }
};

TEST_F(ConstraintCache, ReadsWhatASectionHolds) {
    const std::pair<QByteArray, std::string> cases[] = {
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@0@2@\nOther\nC:z@0@0@0@\n", "A:x@0@3@1 B:y@1@0@2"},
        {"Other\nC:z@0@0@0@\nImageOptionPDETiger\nA:x@0@3@1@\n", "A:x@0@3@1"},
        {"ImageOptionPDETiger\nA:x@0@3@1@\nImageOptionPDETiger\nB:y@1@0@2@\n", "A:x@0@3@1"},
        {"ImageOptionPDETiger\r\nA:x@0@3@1@\n", ""},
        {"ImageOptionPDETiger\n\nA:x@0@3@1@\n", ""},
        {"ImageOptionPDETiger\n@0@3@1@A:x@0@3@1@\n", "A:x@0@3@1"}, // no key, no entry
        {"ImageOptionPDETiger\nA:x@a@65537@-1@A:x@ 2@3b@@\n", "A:x@0@1@65535 A:x@2@3@0"},
        {"ImageOptionPDETiger\nA:x@99999999999999999999@0@1@", "A:x@65535@0@1"},
        // Cut off: a rest without "@" ends the reading, an entry that ends early has zeros.
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@0", "A:x@0@3@1"},
        {"ImageOptionPDETiger\nA:x@0@3@1@B:y@1@", "A:x@0@3@1 B:y@1@0@0"},
    };
    for (const auto &[file, expected] : cases) {
        write(file);
        EXPECT_EQ(read(), expected) << file.toStdString();
    }
    write("ImageOptionPDETiger\nT:t@0@0@0@\nImageOptionPDEPanther\nP:p@0@0@0@\n");
    for (const char *release : {"6.8.0", "7.9.0", "8.0.0"}) { // 0x102x, 0x103x, 0x104x
        setKernelRelease(release);
        EXPECT_EQ(read(), *release == '7' ? "P:p@0@0@0" : "T:t@0@0@0");
    }
}

TEST_F(ConstraintCache, WhatIsNoRegularFileIsUnreadable) {
    const QString fifo = folder.filePath("fifo");
    ASSERT_EQ(mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
    for (const QString &path : {fifo, folder.path(), folder.filePath("missing"), QString()}) {
        ppd = ppdFor(path);
        EXPECT_EQ(read(1), "") << path.toStdString();
    }
    ppd = openPpdText({});
    read(1);
}

TEST_F(ConstraintCache, StaleAndHostileIndicesAreNoConflict) {
    write("ImageOptionPDETiger\nQZColorMode:X@9@0@1@QZColorMode:X@0@65535@1@"
          "QZColorMode:X@0@0@77@QZColorMode:X@-1@-1@-1@QZColorMode:Y@0@1@1@\n");
    hash_multimap table;
    EXPECT_EQ(GetXPPD(ppd.get(), &table, "ImageOptionPDE", "QZXCDFSetting"), 0);
    EXPECT_EQ(table.size(), 5u);
    ppdMarkOption(ppd.get(), "QZOutputMode", "P");
    EXPECT_FALSE(IsPPDChoiceConflicted(ppd.get(), &table, "QZColorMode", "X"));
    EXPECT_TRUE(IsPPDChoiceConflicted(ppd.get(), &table, "QZColorMode", "Y"));
}

TEST_F(ConstraintCache, WrittenSectionsReadBackAndEndWithTheStamp) {
    hash_multimap fresh, table;
    xSetxppd(ppd.get(), &fresh);
    std::list<std::string> both{"QZColorMode", "QZOutputMode"}, none{"Other"};
    std::string tiger = strImageOptionPDETiger, panther = strImageOptionPDEPanther;
    const x_PDEConstr sections[] = {{&panther, &none}, {&tiger, &both}, {}};
    const std::pair<QByteArray, std::string> cases[] = {
        {"*A\r*% Last Edit Date: x\r*B\r", "*% Last Edit Date: x"},
        {"*A\r\n*% Last Edit Date: x\r\n*B\r\n", "\n*% Last Edit Date: x"},
        {"*A\n*% Last Edit Date: x\n*B\n", "*A\n*% Last Edit Date: x\n*B\n"},
        {"*A\r*B\r", ""}, // no stamp: ends with the file
    };
    for (const auto &[text, stamp] : cases) {
        std::string ppdPath = write(text, "stamped.ppd");
        CQuickXPPD writer(ppd.get(), &table, sections, &ppdPath);
        std::ostringstream out;
        out << writer;
        EXPECT_EQ(table.size(), 0u);
        EXPECT_TRUE(out.str().starts_with("ImageOptionPDEPanther\n\nImageOptionPDETiger\n"));
        EXPECT_TRUE(out.str().ends_with("@\n" + stamp)) << out.str();
        write(QByteArray::fromStdString(out.str()));
        EXPECT_EQ(read(), entries(fresh));
    }
    EXPECT_EQ(fresh.size(), 6u);
}

TEST(ConstraintCacheFields, AreMovedBehindWhatIsThere) {
    CQuickXPPD cache;
    std::string line = "a@@rest", field = "before ";
    for (const auto &[taken, left] :
         {std::pair("before a", "@rest"), {"before a", "rest"}, {"before a", "rest"}}) {
        cache.getoneline(&line, &field, '@');
        EXPECT_EQ(field, taken);
        EXPECT_EQ(line, left);
    }
    std::ostringstream out;
    EXPECT_EQ(cache.SetFileHead(out, nullptr), 0);
    EXPECT_EQ(out.str(), "");
}
