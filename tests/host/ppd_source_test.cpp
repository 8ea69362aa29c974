#include "run_host.h"
#include "support/ppd_text.h"

#include "host/host_error.h"
#include "host/ppd_source.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QByteArray kHead = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1\"\n"
                         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n"
                         "*PCFileName: \"A.PPD\"\n*Manufacturer: \"QZ\"\n*Product: \"(A)\"\n"
                         "*ModelName: \"A\"\n*ShortNickName: \"A\"\n*NickName: \"A\"\n";
const QByteArray kOption =
    "*OpenUI *Tone/Tone: PickOne\n*DefaultTone: Low\n*Tone Low/Low: \"1 x\"\n"
    "*Tone High/High: \"\n2 x\n\"\n*End\n*CloseUI: *Tone\n";
const QByteArray kGroup = "*OpenGroup: G/Group\n" + kOption + "*CloseGroup: G\n";

QString complaint(const QString &path) {
    try {
        host::openPpdFile(path);
        return {};
    } catch (const host::HostError &error) {
        return error.text();
    }
}

} // namespace

TEST(PpdSource, CutOffFilesAreRefused) {
    const QByteArray crlf = QByteArray(kHead + kGroup).replace("\n", "\r\n");
    const struct {
        const char *name;
        QByteArray text;
        const char *complaint; ///< null for a file that is fine
    } cases[] = {
        {"whole", kHead + kGroup, nullptr},
        {"CR LF", crlf, nullptr},
        {"CR", QByteArray(kHead + kGroup).replace("\n", "\r"), nullptr},
        {"within a line", kHead + kOption.left(60), "the last line has no end"},
        {"after an open UI", kHead + kOption.left(kOption.indexOf("*CloseUI")),
         "line 12: the option *Tone isn't closed"},
        {"in a group", kHead + kGroup.left(kGroup.indexOf("*CloseGroup")),
         "line 12: the group G isn't closed"},
        {"in a quoted value", kHead + kOption.left(kOption.indexOf("2 x") + 4),
         "line 15: the quoted text that begins here isn't closed"},
        {"CR LF, last line", crlf.chopped(2), "line 21: the last line has no end"},
        {"a quote in a comment", kHead + "*% \"\n" + kGroup, nullptr},
        {"keywords within a value", kHead + "*JobPatchFile 1: \"\n*OpenUI *X: PickOne\n\"\n*End\n",
         nullptr},
    };
    QTemporaryDir folder;
    for (const auto &c : cases) {
        const QString why = complaint(writeFile(folder.path(), "a.ppd", c.text));
        if (!c.complaint)
            EXPECT_TRUE(why.isNull()) << c.name << ": " << why.toStdString();
        else
            EXPECT_TRUE(why.contains(c.complaint)) << c.name << ": " << why.toStdString();
    }
}

/// A cut anywhere but between two lines is seen; one between entries may not be.
TEST(PpdSource, EveryCutWithinALineOfASampleIsSeen) {
    const QByteArray text = readFile(samplePath("velmora-mvo-530.ppd"));
    ASSERT_GT(text.size(), 10000);
    QTemporaryDir folder;
    for (qsizetype size = 37; size < text.size(); size += 191) {
        if (text[size - 1] == '\n')
            continue;
        EXPECT_FALSE(complaint(writeFile(folder.path(), "a.ppd", text.left(size))).isNull())
            << size;
    }
}

TEST(PpdSource, GzippedFileIsRead) {
    QTemporaryDir folder;
    const QString path = writeFile(folder.path(), "a.b.ppd", kHead + kGroup);
    ASSERT_EQ(QProcess::execute("gzip", {path}), 0);
    const host::PpdSource source = host::openPpdFile(path + ".gz");
    EXPECT_TRUE(ppdIsMarked(source.ppd.get(), "Tone", "Low"));
    EXPECT_EQ(source.printer.id, "a.b.ppd");
}

TEST(PpdSource, MarksComeBackAsTheyWereSet) {
    host::PpdSource source{
        openPpdText(ppdOption("Tone", {"Low", "High"}) + ppdOption("PageSize", {"A4", "Custom"}) +
                    "*VariablePaperSize: True\n*MaxMediaWidth: \"900\"\n*MaxMediaHeight: \"900\"\n"
                    "*CustomPageSize True: \"pop\"\n*ParamCustomPageSize Width: 1 points 10 900\n"
                    "*ParamCustomPageSize Height: 2 points 10 900\n"
                    "*PaperDimension A4: \"595 842\"\n*ImageableArea A4: \"0 0 595 842\"\n"
                    "*CustomTone True: \"pop\"\n*ParamCustomTone Level: 1 int 0 99\n"),
        {}};
    ASSERT_TRUE(source.ppd);
    const QList<QPair<QString, QString>> marks{{"Tone", "Custom.42"},
                                               {"PageSize", "Custom.200x300"}};
    host::markChoices(source, marks);
    const auto marked = host::markedChoices(source.ppd.get());
    for (const auto &mark : marks)
        EXPECT_TRUE(marked.contains(mark)) << mark.first.toStdString();
}
