// A constraint cache file of any content: read, asked, written, read again.

#include "fuzz.h"

#include "platform/ppd_file.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_cache.h"

#include <sstream>

namespace {

/// A PPD whose cache is a file of ours.
ppd_file_t *ppdWithCache() {
    static const PpdFile file = [] {
        QByteArray text = sampleText("velmora-mvo-530.ppd");
        text.replace("*FormatVersion:",
                     "*QZXCDFSetting: \"" + scratchPath("cache").toUtf8() + "\"\n*FormatVersion:");
        return parsePpdFile(text);
    }();
    REQUIRE(file.ppd);
    return file.ppd.get();
}

void ask(ppd_file_t *ppd, const hash_multimap &table) {
    for (int g = 0; g < ppd->num_groups; ++g)
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &option = ppd->groups[g].options[o];
            for (int c = 0; c < option.num_choices; ++c)
                REQUIRE(
                    IsPPDChoiceConflicted(ppd, &table, option.keyword, option.choices[c].choice) ==
                    !forbiddingMarks(ppd, &table, option.keyword, option.choices[c].choice)
                         .isEmpty());
        }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    ppd_file_t *ppd = ppdWithCache();
    ppdMarkDefaults(ppd);
    const QByteArray content(reinterpret_cast<const char *>(data), qsizetype(size));
    writeScratch(scratchPath("cache"), content);
    hash_multimap table;
    REQUIRE(GetXPPD(ppd, &table, "ImageOptionPDE", "QZXCDFSetting") == 0);
    ask(ppd, table);

    std::string section = strImageOptionPDETiger;
    hash_multimap direct;
    CQuickXPPD reader(&direct, &section);
    std::istringstream in(content.toStdString());
    in >> reader;
    ask(ppd, direct);
    return 0;
}
