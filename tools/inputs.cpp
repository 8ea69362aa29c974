#include "tools/inputs.h"

#include "platform/file_content.h"
#include "ppd/constraint_cache.h"
#include "ppd/panel_options.h"
#include "tools/tool_error.h"

#include <algorithm>

namespace cdf {
namespace {

constexpr qint64 kGreatestKeysFile = 1 << 20;

} // namespace

const QStringList kPanelSections{QString::fromStdString(strImageOptionPDETiger),
                                 QString::fromStdString(strImageOptionPDEPanther)};

PpdFile openPpd(const QString &path) {
    PpdFile file = readPpdFile(path);
    if (!file.ppd)
        throw ToolError(path, file.reason);
    return file;
}

std::unique_ptr<QTemporaryFile> copyWithCarriageReturns(const QByteArray &text) {
    auto copy = std::make_unique<QTemporaryFile>();
    QByteArray lines = text;
    lines.replace("\r\n", "\r").replace('\n', '\r');
    if (!copy->open() || copy->write(lines) != lines.size() || !copy->flush())
        throw ToolError(copy->fileTemplate(), reasonOf(*copy));
    return copy;
}

std::list<std::string> watchedKeys(const QString &path) {
    if (path.isNull())
        return {kPanelOptionKeys.begin(), kPanelOptionKeys.end()};
    QString reason;
    auto content = readRegularFile(path, kGreatestKeysFile, &reason);
    if (!content)
        throw ToolError(path, reason);
    std::list<std::string> keys;
    int number = 0;
    for (const QByteArray &line : content->replace("\r\n", "\n").replace('\r', '\n').split('\n')) {
        ++number;
        QByteArray key = line.trimmed();
        if (key.isEmpty() || key.startsWith('#'))
            continue;
        if (key.startsWith('*'))
            key.remove(0, 1);
        const bool isKeyword = std::ranges::all_of(
            key, [](char c) { return c > ' ' && c < '\x7f' && c != '/' && c != ':' && c != '*'; });
        if (key.isEmpty() || key.size() >= PPD_MAX_NAME || !isKeyword)
            throw ToolError(path, QStringLiteral("line %1: is no option's keyword").arg(number));
        keys.push_back(key.toStdString());
    }
    if (keys.empty())
        throw ToolError(path, QStringLiteral("names no option"));
    return keys;
}

} // namespace cdf
