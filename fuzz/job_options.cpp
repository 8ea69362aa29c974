// Options of a job: what is sent parses back as the same pairs, or is refused.

#include "fuzz.h"

#include "host/cups_server.h"
#include "host/settings/job_options.h"
#include "host/settings/job_settings.h"
#include "host/settings/page_ranges.h"
#include "platform/ppd_file.h"
#include "tests/support/filter_options.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    FuzzedDataProvider input(data, size);
    static const PpdFile file = parsePpdFile(sampleText("velmora-mvo-540.ppd"));
    REQUIRE(file.ppd);
    ppdMarkDefaults(file.ppd.get());
    PrintSettings settings;
    host::OptionList given, plain;
    while (input.remaining_bytes() > 0 && given.size() < 20) {
        const QString name = takeText(input, 30), value = takeText(input, 60);
        if (input.ConsumeBool())
            settings.set(name, value, false);
        else
            given.append({name, value});
        if (host::sendingProblem(name, value).isNull())
            plain.append({name, value});
        const host::PageRanges ranges =
            host::readPageRanges(value, input.ConsumeIntegral<uint8_t>());
        REQUIRE(ranges.problem.isNull() != ranges.value.isNull());
    }
    host::JobSettings job(file.ppd.get(), given, given);
    job.takeOptions(given);
    const auto sent = host::jobOptionsToSend(file.ppd.get(), &settings, job.jobOptions() + given);
    for (qsizetype i = 0; i < sent.size(); ++i)
        for (qsizetype j = 0; j < i; ++j)
            REQUIRE(sent[i].first.compare(sent[j].first, Qt::CaseInsensitive) != 0);

    for (const auto &pair : plain) {
        cups_option_t *parsed = nullptr;
        const int count = cupsParseOptions(
            filterOptions({{"first", "1"}, pair, {"last", "2"}}).constData(), 0, &parsed);
        const char *value = cupsGetOption(pair.first.toUtf8().constData(), count, parsed);
        REQUIRE(count == 3 || pair.first.compare("first", Qt::CaseInsensitive) == 0 ||
                pair.first.compare("last", Qt::CaseInsensitive) == 0);
        REQUIRE(value);
        REQUIRE(count < 3 || QString::fromUtf8(value) == pair.second);
        cupsFreeOptions(count, parsed);
    }
    return 0;
}
