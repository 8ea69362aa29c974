// A preset's file of any content, and names of any kind.

#include "fuzz.h"

#include "host/presets/preset.h"
#include "host/presets/preset_files.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray content(reinterpret_cast<const char *>(data), qsizetype(size));
    QString reason;
    const auto preset = host::parsePreset(content, &reason);
    REQUIRE(preset || !reason.isEmpty());
    if (preset) { // what was read is written, and read as the same
        const QByteArray text = host::presetText(*preset);
        const auto again = host::parsePreset(text, &reason);
        REQUIRE(again && again->setsSameAs(*preset) && again->name == preset->name);
        REQUIRE(host::presetText(*again) == text);
    }
    const QString name = QString::fromUtf8(content.left(200));
    const QString file = host::fileNameFor(name);
    REQUIRE(!file.contains(u'/') && !file.contains(u'.') && file.size() < 255);
    if (const auto back = host::nameFromFile(file))
        REQUIRE(*back == name);
    return 0;
}
