#include "support/run_program.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

ProgramRun runProgram(const QString &program, const QStringList &arguments, const QString &folder,
                      const QByteArray &input, const QStringList &environment) {
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : environment)
        variables.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    process.setProcessEnvironment(variables);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    ProgramRun run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run.exitCode = process.exitCode();
    else
        process.kill();
    process.waitForFinished(5000);
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

QString writeFile(const QString &folder, const QString &name, const QByteArray &content) {
    const QString path = QDir(folder).filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return path;
}

QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
