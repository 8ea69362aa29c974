#include "run_host.h"
#include "support/ppd_text.h"

#include "host/document.h"
#include "host/host_error.h"

#include <QFile>
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

TEST(Document, PdfIsToldByItsContentAndConverted) {
    QTemporaryDir folder;
    const QString path = folder.filePath("-odd name.ps");
    ASSERT_TRUE(QFile::copy(samplePath("sample.pdf"), path));
    const host::Document document = host::readDocument(path);
    EXPECT_EQ(document.type, host::Document::Type::Pdf);
    const QByteArray text = bytesOf(host::toPostScript(document));
    EXPECT_TRUE(text.startsWith("%!PS-Adobe-"));
    EXPECT_TRUE(text.contains("%%Page: 2 2"));

    const QByteArray path2 = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_THROW(host::toPostScript(document), host::HostError) << "without any converter";
    qputenv("PATH", path2);
}
