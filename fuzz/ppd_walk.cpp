// A PPD of any content: opened, walked whole, marked and asked for conflicts in any order.

#include "fuzz.h"

#include "host/conflicts/resolution.h"
#include "host/ps_job.h"
#include "host/settings/custom_parameters.h"
#include "host/settings/sent_list.h"
#include "platform/ppd_file.h"
#include "platform/ppd_marks.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "ppd/panel_options.h"
#include "ppd/ppd_query.h"
#include "ppd/resource_names.h"

#include <sstream>

namespace {

void queries(ppd_file_t *ppd, const char *key, const char *choice) {
    CheckPPDKeyIsExist(ppd, key);
    CDFKeyExist(ppd, QString::fromUtf8(key));
    ppdFindAttr_ALT(ppd, key, nullptr);
    GetPPDKeyOptionCount(ppd, key);
    const QString texts[] = {QString::fromUtf8(choice), "None"};
    GetValueFromPPD(ppd, key, texts, 2);
    GetUIDefaultValueFromPPD(ppd, key);
    GetChoiceIndex(ppd, key, choice);
    ppd_option_t *option = ppdFindOption(ppd, key);
    GetIndexFromPPDByKeyword(option, choice);
    GetIndexOfMarkedOptionWithKey(option, ppd, key);
    QString text;
    GetUIDefaultFromPPD(ppd, key, text);
    GetUITitleFromPPD(ppd, key, text);
    char value[41];
    GetValueFromPPDByIndex(ppd, key, value, option ? option->num_choices - 1 : 0);
    GetValueFromPPDByIndex(ppd, key, value, -1);
    if (const auto choices = ArrayFromPPDOption(option))
        for (const auto &row : *choices)
            row.description();
    GetPWMiniIntValueFromPPD(ppd, key);
    GetSorvaniPWMiniIntValueFromPPD(ppd, key);
    GetMBMaxNumberFromPPD(ppd, key);
    char fixed[100];
    FixPPDKeywordAccordingToType(ppd, key, fixed);
    findVendorAttribute(ppd, key);
}

void walk(ppd_file_t *ppd, const hash_multimap &table) {
    unsigned int encoding = 0;
    GetCFStringEncodingFromPPD(ppd, &encoding);
    for (int g = 0; g < ppd->num_groups; ++g)
        for (int o = 0; o < ppd->groups[g].num_options; ++o) {
            const ppd_option_t &option = ppd->groups[g].options[o];
            labelOr(option.text, encoding, option.keyword);
            ChoiceRows rows;
            short count = 0;
            GetUIListFromPPD(ppd, &table, option.keyword, &rows, &count);
            REQUIRE(rows.size() == count);
            queries(ppd, option.keyword, option.defchoice);
        }
}

/// What the panel's table says is what the PPD's lines say, by a plain reading of both.
void compareWithCache(ppd_file_t *ppd, const hash_multimap &table) {
    std::list<std::string> keys(kPanelOptionKeys.begin(), kPanelOptionKeys.end());
    std::string name = strImageOptionPDETiger;
    x_PDEConstr sections[] = {{&name, &keys}, {}};
    hash_multimap scratch;
    CQuickXPPD writer(ppd, &scratch, sections, nullptr);
    std::stringstream file;
    file << writer;
    hash_multimap read;
    CQuickXPPD reader(&read, &name);
    file >> reader;
    REQUIRE(read.size() == table.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    // Behind the PPD, parted by two zero bytes, stands what is done with it.
    const QByteArray whole(reinterpret_cast<const char *>(data), qsizetype(size));
    const qsizetype end = whole.lastIndexOf(QByteArray(2, '\0'));
    const PpdFile file = parsePpdFile(end < 0 ? whole : whole.left(end));
    if (!file.ppd)
        return 0;
    ppd_file_t *ppd = file.ppd.get();
    const QByteArray rest = end < 0 ? QByteArray() : whole.mid(end + 2);
    FuzzedDataProvider input(reinterpret_cast<const uint8_t *>(rest.constData()),
                             size_t(rest.size()));
    ppdMarkDefaults(ppd);
    hash_multimap table;
    xSetxppd(ppd, &table);
    walk(ppd, table);
    bool isWritable = table.size() < 20000; // the format has no form for a name with "@" in it
    if (isWritable)
        table.forEach([&](std::string_view key, x_constraints) {
            isWritable &= key.find_first_of("@\n") == key.npos;
        });
    if (isWritable)
        compareWithCache(ppd, table);
    const host::ConflictIndex conflicts(ppd);
    host::JobSettings job(ppd);
    do {
        const int g =
            ppd->num_groups > 0 ? input.ConsumeIntegralInRange(0, ppd->num_groups - 1) : -1;
        if (g < 0 || ppd->groups[g].num_options < 1)
            break;
        const ppd_option_t &option =
            ppd->groups[g].options[input.ConsumeIntegralInRange(0, ppd->groups[g].num_options - 1)];
        if (option.num_choices < 1)
            continue;
        const QByteArray choice =
            input.ConsumeBool()
                ? QByteArray(option.choices[input.ConsumeIntegralInRange(0, option.num_choices - 1)]
                                 .choice)
                : takeBytes(input, 40);
        markChoice(ppd, option.keyword, choice.constData());
        host::customParameters(ppd, QString::fromUtf8(option.keyword));
        conflicts.reasonAgainst(QString::fromUtf8(option.keyword), QString::fromUtf8(choice));
        IsPPDChoiceConflicted(ppd, &table, option.keyword, choice.constData());
    } while (input.remaining_bytes() > 0);
    walk(ppd, table);
    host::proposal(conflicts);
    host::sentList({ppd, nullptr, &job});
    host::writePsJob(host::psCode(ppd, "title"),
                     QByteArray("%!PS-Adobe-3.0\n%%EndComments\nshowpage\n"), "title",
                     [](const QByteArray &) {});
    return 0;
}
