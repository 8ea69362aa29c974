#include "generated_ppd.h"

#include "platform/cups_ppd.h"
#include "ppd/constraint_cache.h"
#include "ppd/panel_options.h"

#include <QTemporaryDir>

#include <fstream>
#include <list>
#include <map>
#include <vector>

namespace {

struct Place {
    const char *option, *choice;
};

const QTemporaryDir &folder() {
    static const QTemporaryDir made;
    return made;
}

/// Choices of the panel's options that aren't the default.
std::vector<Place> freeChoices(ppd_file_t *ppd) {
    std::vector<Place> places;
    for (const char *key : kPanelOptionKeys)
        if (const ppd_option_t *option = ppdFindOption(ppd, key))
            for (int i = 0; i < option->num_choices; ++i)
                if (std::string(option->choices[i].choice) != option->defchoice)
                    places.push_back({option->keyword, option->choices[i].choice});
    return places;
}

void writeRules(std::ostream &out, const std::vector<Place> &places, int64_t count, Rules rules) {
    uint64_t random = 1;
    const auto next = [&]() -> const Place & {
        random = random * 6364136223846793005U + 1442695040888963407U;
        return places[(random >> 33) % places.size()];
    };
    for (int64_t i = 0; i < count;) {
        const Place &first = next(), &second = next();
        if (std::string(first.option) == second.option)
            continue;
        out << "*UIConstraints: *" << first.option << ' ' << first.choice << " *" << second.option;
        if (rules != Rules::Wildcards || i % 10 != 0)
            out << ' ' << second.choice;
        out << '\n';
        ++i;
    }
}

void writeCache(const std::string &ppdPath, const std::string &cachePath) {
    const PpdPtr ppd(ppdOpenFile(ppdPath.c_str()));
    std::string section = strImageOptionPDETiger, path = ppdPath;
    std::list<std::string> keys(std::begin(kPanelOptionKeys), std::end(kPanelOptionKeys));
    const x_PDEConstr sections[] = {{&section, &keys}, {}};
    hash_multimap table;
    CQuickXPPD writer(ppd.get(), &table, sections, &path);
    std::ofstream out(cachePath, std::ios::binary);
    out << writer;
}

} // namespace

std::string generatedPpd(int64_t constraints, Rules rules) {
    const std::string base = folder().filePath("mvo").toStdString() + std::to_string(constraints) +
                             '-' + std::to_string(static_cast<int>(rules));
    const std::string path = base + ".ppd", cache = base + ".cdf";
    if (std::ifstream(path))
        return path;
    const std::string sample = SAMPLES_DIR "/velmora-mvo-530.ppd";
    const PpdPtr ppd(ppdOpenFile(sample.c_str()));
    const std::string attribute = "*QZXImageOptionsSettings";
    std::ifstream in(sample);
    std::ofstream out(path);
    bool written = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("*UIConstraints")) {
            if (!std::exchange(written, true))
                writeRules(out, freeChoices(ppd.get()), constraints, rules);
            continue;
        }
        out << line << '\n';
        if (rules == Rules::Cached && line.starts_with(attribute))
            out << "*QZXCDFSetting: \"" << cache << "\"\n";
    }
    out.close();
    if (rules == Rules::Cached)
        writeCache(path, cache);
    return path;
}

std::string wildcardPpd() {
    const std::string path = folder().filePath("wildcards.ppd").toStdString();
    if (std::ifstream(path))
        return path;
    std::ofstream out(path);
    out << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
           "*LanguageEncoding: UTF-8\n*ModelName: \"Bench\"\n*NickName: \"Bench\"\n";
    for (const char *option : {"QZColorMode", "QZRGBImageType"}) {
        out << "*OpenUI *" << option << "/Option: PickOne\n*Default" << option << ": C0\n";
        for (int choice = 0; choice < 300; ++choice)
            out << '*' << option << " C" << choice << "/Choice: \"\"\n";
        out << "*CloseUI: *" << option << '\n';
    }
    for (int i = 0; i < 1000; ++i)
        out << "*UIConstraints: *QZColorMode *QZRGBImageType\n";
    return path;
}
