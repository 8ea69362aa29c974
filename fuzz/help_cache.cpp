// The help viewer's list of books, with any content.

#include "fuzz.h"

#include "platform/help_book_list.h"
#include "platform/property_list.h"
#include "services/help.h"

#include <QDir>
#include <QFile>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString folder = scratchPath("home/Library/Preferences");
    QDir().mkpath(folder);
    const QString path = folder + QStringLiteral("/com.apple.help.plist");
    FuzzedDataProvider input(data, size);
    const bool isBook = input.ConsumeBool();
    const QString identifier = isBook ? QStringLiteral("com.velmora.book") : takeText(input, 20);
    const QByteArray content = QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());
    writeScratch(path, content);
    RemoveHelpCacheForBundleID(identifier);
    QFile file(path);
    REQUIRE(file.open(QIODevice::ReadOnly));
    const QByteArray after = file.readAll();
    REQUIRE(after == content || property_list::parse(after)); // left alone, or whole
    return 0;
}
