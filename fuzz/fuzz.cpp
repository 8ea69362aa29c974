#include "fuzz.h"

#include <QApplication>
#include <QFile>
#include <QStandardPaths>

void writeScratch(const QString &path, const QByteArray &content) {
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray sampleText(const char *name) {
    QFile file(QStringLiteral(SAMPLES_DIR "/") + QLatin1String(name));
    REQUIRE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

/// Widgets need an application; the person's own folders stay alone.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", scratchPath("home").toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", scratchPath(".").toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    static int count = 1;
    Q_UNUSED(argc);
    new QApplication(count, *argv); // for as long as the process
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}
