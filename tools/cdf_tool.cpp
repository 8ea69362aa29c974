// cdf-tool: writes the constraint cache file of a PPD.
//
//   cdf-tool write PPD -o FILE
//
// The file gets both sections of the image options panel, each with the constraints of its options.
// Exit code 0, or 2 with one line that names the file and the reason.

#include "platform/cups_ppd.h"
#include "ppd/constraint_cache.h"
#include "ppd/panel_options.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringList>
#include <QTemporaryFile>

#include <cstdio>
#include <sstream>

namespace {

int fail(const QString &file, const QString &reason) {
    std::fprintf(stderr, "cdf-tool: %s: %s\n", qUtf8Printable(file), qUtf8Printable(reason));
    return 2;
}

/// A copy of a PPD with CR line ends, in which the stamp is a line of its own for the writer.
bool copyWithCarriageReturns(const QString &path, QTemporaryFile *copy) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !copy->open())
        return false;
    QByteArray text = file.readAll();
    text.replace("\r\n", "\r");
    text.replace('\n', '\r');
    return copy->write(text) == text.size() && copy->flush();
}

int write(const QString &ppdPath, const QString &outPath) {
    const QFileInfo info(ppdPath);
    if (!info.exists())
        return fail(ppdPath, QStringLiteral("no such file"));
    if (!info.isFile()) // opening a pipe would wait for a writer
        return fail(ppdPath, QStringLiteral("not a regular file"));
    if (!info.isReadable())
        return fail(ppdPath, QStringLiteral("can't be read"));
    const PpdPtr ppd(ppdOpenFile(QFile::encodeName(ppdPath).constData()));
    if (!ppd) {
        int line = 0;
        const ppd_status_t status = ppdLastError(&line);
        return fail(ppdPath, QStringLiteral("%1 on line %2").arg(ppdErrorString(status)).arg(line));
    }
    QTemporaryFile copy;
    if (!copyWithCarriageReturns(ppdPath, &copy))
        return fail(ppdPath, QStringLiteral("can't be copied for the stamp"));

    std::string tiger = strImageOptionPDETiger;
    std::string panther = strImageOptionPDEPanther;
    std::list<std::string> keys(kPanelOptionKeys.begin(), kPanelOptionKeys.end());
    const x_PDEConstr sections[] = {{&tiger, &keys}, {&panther, &keys}, {}};
    std::string stampPath = copy.fileName().toStdString();
    hash_multimap table;
    CQuickXPPD cache(ppd.get(), &table, sections, &stampPath);
    std::ostringstream out;
    out << cache;

    const std::string text = out.str();
    QSaveFile file(outPath);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(text.data(), static_cast<qint64>(text.size())) < 0 || !file.commit())
        return fail(outPath, file.errorString());
    if (text.find(STRPPDSTAMP) == std::string::npos)
        std::fprintf(stderr, "cdf-tool: %s: no \"%s\" line, the cache has no stamp\n",
                     qUtf8Printable(ppdPath), STRPPDSTAMP.c_str());
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 5 && arguments[1] == QLatin1String("write") &&
        arguments[3] == QLatin1String("-o"))
        return write(arguments[2], arguments[4]);
    std::fprintf(stderr, "usage: cdf-tool write PPD -o FILE\n");
    return 2;
}
