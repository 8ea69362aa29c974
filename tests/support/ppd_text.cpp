#include "support/ppd_text.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

PpdPtr openPpdText(const QByteArray &body, const QByteArray &encoding) {
    QTemporaryFile file;
    if (!file.open()) {
        ADD_FAILURE() << "no temporary file";
        return nullptr;
    }
    file.write("*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
               "*LanguageVersion: English\n*LanguageEncoding: " +
               encoding +
               "\n*PCFileName: \"TEST.PPD\"\n*Manufacturer: \"QZ\"\n*Product: \"(Test)\"\n"
               "*PSVersion: \"(3010.000) 0\"\n*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n"
               "*NickName: \"Test\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n" +
               body);
    file.close();
    PpdPtr ppd(ppdOpenFile(file.fileName().toLocal8Bit().constData()));
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        ADD_FAILURE() << "PPD refused: " << ppdErrorString(status) << " in line " << line;
        return nullptr;
    }
    ppdMarkDefaults(ppd.get());
    return ppd;
}

QByteArray ppdOption(const QByteArray &keyword, const QList<QByteArray> &choices,
                     const QByteArray &defaultChoice, const QByteArray &title) {
    QByteArray text = "*OpenUI *" + keyword + "/" + (title.isEmpty() ? keyword + " title" : title) +
                      ": PickOne\n";
    if (!choices.isEmpty())
        text += "*Default" + keyword + ": " +
                (defaultChoice.isEmpty() ? choices.first() : defaultChoice) + "\n";
    for (const QByteArray &choice : choices)
        text += "*" + keyword + " " + choice + "/" + choice + " label: \"(" + keyword + " " +
                choice + ") pop\"\n";
    return text + "*CloseUI: *" + keyword + "\n";
}

QString samplePath(const QString &fileName) {
    return QStringLiteral(SAMPLES_DIR "/") + fileName;
}

PpdPtr openSample(const QString &fileName) {
    PpdPtr ppd(ppdOpenFile(samplePath(fileName).toLocal8Bit().constData()));
    EXPECT_TRUE(ppd) << "sample " << fileName.toStdString() << " doesn't open";
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}
