#include "host/settings/job_options.h"

#include "host/custom_value.h"
#include "host/settings/ppd_texts.h"

#include <algorithm>

namespace host {
namespace {

/// Options of CUPS, and those of a PPD that are the same setting.
struct Twins {
    const char *cupsOption;
    QList<const char *> ppdOptions;
};

bool isTwinOfMark(ppd_file_t *ppd, const QString &name) {
    static const QList<Twins> table = {
        {"sides", {"Duplex", "JCLDuplex", "EFDuplex", "EFDuplexing", "KD03Duplex"}},
        {"media", {"PageSize", "PageRegion"}},
        {"media-col", {"PageSize", "PageRegion"}},
        {"multiple-document-handling", {"Collate"}},
    };
    for (const auto &[cupsOption, ppdOptions] : table) {
        if (name.compare(QLatin1String(cupsOption), Qt::CaseInsensitive) != 0)
            continue;
        for (const char *keyword : ppdOptions) {
            const ppd_option_t *option = findOption(ppd, QLatin1String(keyword));
            if (option && markedChoice(*option))
                return true;
        }
    }
    return false;
}

void put(OptionList &list, const QString &name, const QString &value) {
    list.removeIf(
        [&](const auto &row) { return row.first.compare(name, Qt::CaseInsensitive) == 0; });
    list.append({name, value});
}

} // namespace

OptionList jobOptionsToSend(ppd_file_t *ppd, const PrintSettings *settings,
                            const OptionList &jobOptions) {
    OptionList list; // the PPD's keywords are unique, so that its rows need no look at the others
    eachPpdOption(ppd, [&](const ppd_group_t &, const ppd_option_t &option) {
        QString sent;
        for (int i = 0; i < option.num_choices; ++i) {
            const ppd_choice_t &choice = option.choices[i];
            if (!choice.marked)
                continue;
            const QString value = isCustom(choice) ? customValueOf(ppd, option, Secrets::With).text
                                                   : QString::fromUtf8(choice.choice);
            sent = value.isNull() ? sent : value;
        }
        if (!sent.isNull())
            list.append({QString::fromUtf8(option.keyword), sent});
    });
    if (settings)
        for (auto entry = settings->entries().begin(); entry != settings->entries().end(); ++entry)
            put(list, entry.key(), entry->value);
    for (const auto &[name, value] : jobOptions)
        if (!isTwinOfMark(ppd, name))
            put(list, name, value);
    return list;
}

} // namespace host
