// BMP data of any content, and image files of any content.

#include "fuzz.h"

#include "services/bmp_data.h"
#include "services/image_conversion.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    const auto type = input.ConsumeIntegralInRange<uint32_t>(0, 7);
    const bool asFile = input.ConsumeIntegralInRange<int>(0, 31) == 0;
    QByteArray content = QByteArray::fromStdString(input.ConsumeRemainingBytesAsString());
    const qsizetype length = content.size();
    if (asFile) { // takes long, so that it comes seldom
        writeScratch(scratchPath("picture"), content);
        ConvertImgType(scratchPath("picture"), scratchPath("converted"), type, type % 2 == 0);
    }
    REQUIRE(VerticalReverse(nullptr) == kImageBadArgument);
    const QByteArray before = content;
    if (VerticalReverse(&content) == kImageDone) {
        REQUIRE(content.size() == length);
    } else {
        REQUIRE(content == before);
    }
    return 0;
}
