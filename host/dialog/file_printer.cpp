#include "host/dialog/file_printer.h"

#include "host/host_error.h"
#include "platform/ppd_file.h"

#include <QCoreApplication>
#include <QLocale>

namespace host {
namespace {

struct Paper {
    const char *keyword, *text;
    int width, length; ///< in points
};
constexpr Paper kPapers[] = {
    {"A3", "A3", 842, 1191},       {"A4", "A4", 595, 842},
    {"A5", "A5", 420, 595},        {"B4", "B4 (JIS)", 729, 1032},
    {"B5", "B5 (JIS)", 516, 729},  {"Letter", "Letter", 612, 792},
    {"Legal", "Legal", 612, 1008}, {"Tabloid", "Tabloid", 792, 1224},
};

QByteArray papersOf(const char *option, const QByteArray &standard) {
    const QByteArray name = option;
    QByteArray text = "*OpenUI *" + name + "/Paper Size: PickOne\n*OrderDependency: 10 AnySetup *" +
                      name + "\n*Default" + name + ": " + standard + '\n';
    for (const Paper &paper : kPapers)
        text += '*' + name + ' ' + paper.keyword + '/' + paper.text + ": \"<</PageSize[" +
                QByteArray::number(paper.width) + ' ' + QByteArray::number(paper.length) +
                "]/ImagingBBox null>>setpagedevice\"\n";
    return text + "*CloseUI: *" + name + '\n';
}

QByteArray filePpd() {
    const bool metric = QLocale().measurementSystem() != QLocale::ImperialUSSystem;
    const QByteArray standard = metric ? "A4" : "Letter";
    QByteArray text = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "FILE.PPD"
*Manufacturer: "Generic"
*Product: "(PostScript)"
*ModelName: "PostScript File"
*ShortNickName: "PostScript File"
*NickName: "PostScript File"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*TTRasterizer: Type42
)ppd";
    text += papersOf("PageSize", standard) + papersOf("PageRegion", standard);
    text += "*DefaultImageableArea: " + standard + "\n*DefaultPaperDimension: " + standard + '\n';
    for (const Paper &paper : kPapers) {
        const QByteArray size =
            QByteArray::number(paper.width) + ' ' + QByteArray::number(paper.length);
        text += QByteArray("*ImageableArea ") + paper.keyword + ": \"0 0 " + size +
                "\"\n*PaperDimension " + paper.keyword + ": \"" + size + "\"\n";
    }
    return text + R"ppd(*OpenUI *Duplex/Two-Sided: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: None
*Duplex None/Off: "<</Duplex false>>setpagedevice"
*Duplex DuplexNoTumble/Long Edge: "<</Duplex true/Tumble false>>setpagedevice"
*Duplex DuplexTumble/Short Edge: "<</Duplex true/Tumble true>>setpagedevice"
*CloseUI: *Duplex
)ppd";
}

} // namespace

PpdSource openFilePrinter() {
    PpdFile file = parsePpdFile(filePpd());
    if (!file.ppd)
        throw HostError(QCoreApplication::translate("host", "Print to File"), file.reason);
    ppdMarkDefaults(file.ppd.get());
    return {std::move(file.ppd), Printer{QStringLiteral("PostScript-File")}};
}

} // namespace host
