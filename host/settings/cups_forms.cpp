#include "host/settings/cups_forms.h"

#include "host/settings/ppd_texts.h"
#include "platform/ppd_marks.h"

#include <QStringList>

#include <cmath>

namespace host {
namespace {

constexpr struct {
    const char *sides;
    const char *choices[3]; ///< what PPDs call it
} kSides[] = {
    {"one-sided", {"None", "False", "Off"}},
    {"two-sided-long-edge", {"DuplexNoTumble", "LongEdge", "Top"}},
    {"two-sided-short-edge", {"DuplexTumble", "ShortEdge", "Bottom"}},
};

/// The PPD's size with the measures of a PWG size, which are hundredths of a millimetre.
const char *sizeLike(ppd_file_t *ppd, const pwg_media_t &media) {
    constexpr double kSlack = 5; // points, as libcups allows
    const double width = media.width * 72 / 2540.0, length = media.length * 72 / 2540.0;
    for (int i = 0; i < ppd->num_sizes; ++i) {
        const ppd_size_t &size = ppd->sizes[i];
        if (qstricmp(size.name, "Custom") != 0 && std::abs(double(size.width) - width) < kSlack &&
            std::abs(double(size.length) - length) < kSlack)
            return size.name;
    }
    return nullptr;
}

bool markSize(ppd_file_t *ppd, const QByteArray &name) {
    const pwg_media_t *media = pwgMediaForPWG(name.constData());
    if (!media)
        media = pwgMediaForLegacy(name.constData());
    const char *size = media ? sizeLike(ppd, *media) : nullptr;
    return size && markChoice(ppd, "PageSize", size);
}

} // namespace

bool markSides(ppd_file_t *ppd, const ppd_option_t &duplex, const QString &sides) {
    for (const auto &row : kSides)
        if (sides.compare(QLatin1String(row.sides), Qt::CaseInsensitive) == 0)
            for (const char *choice : row.choices)
                if (markChoice(ppd, duplex.keyword, choice))
                    return true;
    return false;
}

QString sidesOf(const ppd_choice_t &choice) {
    for (const auto &row : kSides)
        for (const char *word : row.choices)
            if (qstricmp(choice.choice, word) == 0)
                return QLatin1String(row.sides);
    return {};
}

bool markMedia(ppd_file_t *ppd, const QString &media) {
    bool all = true;
    for (const QString &part : media.split(u',', Qt::SkipEmptyParts)) {
        const QByteArray name = part.trimmed().toUtf8();
        all &= markChoice(ppd, "PageSize", name.constData()) || markSize(ppd, name) ||
               markChoice(ppd, "InputSlot", name.constData()) ||
               markChoice(ppd, "MediaType", name.constData());
    }
    return all;
}

} // namespace host
