#include "ppd/resource_names.h"

#include "ppd/flat_index.h"
#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace {

constexpr size_t kPartBytes = 254;
constexpr qsizetype kNameUnits = 510;
constexpr qsizetype kKeywordBytes = 99;

} // namespace

QString GetAppResourceName(const char *value, int32_t part) {
    if (!value)
        return {};
    const std::string_view whole(value);
    const size_t hyphen = std::min(whole.find('-'), whole.size());
    std::string_view text;
    if (part == 0)
        text = whole.substr(0, hyphen);
    else if (part == 1 && hyphen < whole.size())
        text = whole.substr(hyphen + 1);
    return decodePpdText(std::string(text.substr(0, kPartBytes)).c_str(), kEncodingUTF8);
}

QString GetAppResourceNameNS(const char *value, int32_t part) {
    return GetAppResourceName(value, part);
}

QString GetAppFullResourceName(const QString &name, int32_t part, const QString &prefix0,
                               const QString &prefix1) {
    if (name.isNull())
        return {};
    const QString prefix = part == 0 ? prefix0 : part == 1 ? prefix1 : QString();
    return QString(prefix + name).left(kNameUnits);
}

void FixPPDKeywordAccordingToType(ppd_file_t *ppd, const char *keyword, char *out) {
    if (!keyword || !out)
        return;
    std::string text(keyword);
    const std::string_view prefix(KVendorPPDPrefix);
    const ppd_attr_t *maker = ppdFindAttr_ALT(ppd, "Manufacturer", nullptr);
    if (FoldedText::equal(std::string_view(text).substr(0, prefix.size()), prefix) && maker &&
        maker->value && std::strcmp(maker->value, KVendorPPDValue) == 0)
        text.replace(0, prefix.size(), prefix);
    // As many bytes as the text has characters: the same for keywords, which are ASCII.
    const qsizetype units = QString::fromStdString(text).size();
    std::memcpy(out, text.data(), static_cast<size_t>(std::min(units, kKeywordBytes)));
}

ppd_attr_t *findVendorAttribute(ppd_file_t *ppd, const char *keyword) {
    std::array<char, 100> adapted{};
    FixPPDKeywordAccordingToType(ppd, keyword, adapted.data());
    return ppdFindAttr_ALT(ppd, adapted.data(), nullptr);
}
