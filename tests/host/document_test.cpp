#include "run_host.h"
#include "support/ppd_text.h"

#include "host/document.h"
#include "host/host_error.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QByteArray bytesOf(const host::Content &content) {
    return content.read(0, content.size());
}

} // namespace

TEST(Document, PostScriptIsBaredOfWhatSurroundsIt) {
    const QByteArray plain = "%!PS\nshowpage\n", uel = "\x1b%-12345X";
    const auto dosEps = [&](quint32 at, quint32 length) {
        QByteArray file("\xc5\xd0\xd3\xc6", 4);
        for (const quint32 number : {at, length, 0u, 0u, 0u, 0u})
            for (int byte = 0; byte < 4; ++byte)
                file.append(char(number >> (8 * byte)));
        return file + QByteArray(2, '\0') + plain + "preview";
    };
    const struct {
        const char *name;
        QByteArray content;
        bool isPostScript;
    } cases[] = {
        {"plain", plain, true},
        {"end of transmission around it", "\x04" + plain + "\x04\x04", true},
        {"job control around it",
         uel + "@PJL JOB\r\n@PJL ENTER LANGUAGE=POSTSCRIPT\r\n" + plain + "\x04" + uel +
             "@PJL EOJ\n",
         true},
        {"job control alone", uel + "@PJL JOB\n", false},
        {"DOS EPS", dosEps(30, quint32(plain.size())), true},
        {"DOS EPS that tells too much", dosEps(30, 4000000000u), false},
        {"DOS EPS that starts nowhere", dosEps(4000000000u, 4000000000u), false},
        {"text", "%PS\n", false},
        {"nothing", "", false},
    };
    for (const auto &c : cases)
        EXPECT_EQ(bytesOf(host::barePostScript(c.content)), c.isPostScript ? plain : QByteArray())
            << c.name;
}

/// Memory of a process that was used at most, in bytes.
qint64 peakOf(qint64 process) {
    const QByteArray status = readFile(QStringLiteral("/proc/%1/status").arg(process));
    const qsizetype at = status.indexOf("VmHWM:") + 6;
    return status.mid(at, status.indexOf("kB", at) - at).trimmed().toLongLong() << 10;
}

TEST(Document, OfAnySizeTakesLittleMemory) {
    constexpr qint64 kSize = qint64(300) << 20;
    QTemporaryDir folder;
    const QString path = writeFile(folder.path(), "large.ps", "%!PS\n"), to = path + ".out";
    ASSERT_TRUE(QFile::resize(path, kSize));
    QProcess host;
    host.start(HOST_PROGRAM, {"drive", "--ppd", samplePath("velmora-plain.ppd")});
    const auto ask = [&](const QByteArray &command) {
        host.write(command + '\n');
        while (!host.canReadLine() && host.waitForReadyRead(60000)) {
        }
        return host.readLine();
    };
    ASSERT_TRUE(ask(R"({"do": "state"})").contains("true"));
    const qint64 before = peakOf(host.processId());
    EXPECT_TRUE(ask(R"({"do": "print", "document": ")" + path.toUtf8() + R"(", "to": ")" +
                    to.toUtf8() + "\"}")
                    .contains("true"));
    EXPECT_GT(QFile(to).size(), kSize);
#ifndef __SANITIZE_ADDRESS__ // which keeps what is freed
    EXPECT_LT(peakOf(host.processId()) - before, 16 << 20);
#endif
    EXPECT_GT(before, 1 << 20);
    host.closeWriteChannel();
    EXPECT_TRUE(host.waitForFinished());

    const host::Document document = host::readDocument(path);
    ASSERT_TRUE(QFile::resize(path, 100)); // in its place, while it is open
    EXPECT_THROW(document.content.read(0, 10), host::HostError);
}

TEST(Document, PdfIsToldByItsContentAndConverted) {
    QTemporaryDir folder;
    const QString path = folder.filePath("-odd name.ps");
    ASSERT_TRUE(QFile::copy(samplePath("sample.pdf"), path));
    const host::Document document = host::readDocument(path);
    EXPECT_EQ(document.type, host::Document::Type::Pdf);
    QFile::remove(path); // what was opened is what is printed
    const QByteArray text = bytesOf(host::toPostScript(document));
    EXPECT_TRUE(text.startsWith("%!PS-Adobe-"));
    EXPECT_TRUE(text.contains("%%Page: 2 2"));

    const QByteArray path2 = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_THROW(host::toPostScript(document), host::HostError) << "without any converter";
    qputenv("PATH", path2);
}
