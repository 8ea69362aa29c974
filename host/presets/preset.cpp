#include "host/presets/preset.h"

#include "host/words.h"

#include <algorithm>
#include <iterator>

namespace host {
namespace {

constexpr qsizetype kLongestName = 200;

bool equalEntries(const PrintSettings::Entry &a, const PrintSettings::Entry &b) {
    return a.value == b.value && a.locked == b.locked;
}

} // namespace

bool Preset::setsSameAs(const Preset &other) const {
    return choices == other.choices && jobOptions == other.jobOptions &&
           settings.keys() == other.settings.keys() &&
           std::equal(settings.begin(), settings.end(), other.settings.begin(), equalEntries);
}

QString presetNameProblem(const QString &name) {
    if (name.trimmed().isEmpty())
        return HostWords::tr("the name is empty");
    if (name != name.trimmed())
        return HostWords::tr("the name begins or ends with a blank");
    if (name.size() > kLongestName)
        return HostWords::tr("the name has more than %1 characters").arg(kLongestName);
    const bool isLine = std::none_of(name.begin(), name.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
               c.category() == QChar::Separator_Paragraph;
    });
    if (!isLine || !name.isValidUtf16())
        return HostWords::tr("the name has a character that can't be shown");
    return {};
}

bool isSecretKey(const QString &key) {
    static constexpr const char *kSigns[] = {"password", "passcode", "auth-info"};
    return std::any_of(std::begin(kSigns), std::end(kSigns), [&](const char *sign) {
        return key.contains(QLatin1String(sign), Qt::CaseInsensitive);
    });
}

} // namespace host
