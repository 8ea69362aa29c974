#include "run_tool.h"

#include <QDir>
#include <QFile>
#include <QProcess>

ToolTest::Run ToolTest::run(const QStringList &arguments) const {
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(CDF_TOOL), arguments);
    Run run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run.exitCode = process.exitCode();
    else
        process.kill();
    process.waitForFinished(5000);
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

void ToolTest::write(const QString &name, const QByteArray &content) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray ToolTest::read(const QString &name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList ToolTest::files() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden);
}
