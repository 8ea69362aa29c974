#include "host/settings/job_settings.h"

#include "host/presets/preset.h"
#include "host/settings/cups_forms.h"
#include "host/settings/custom_parameters.h"
#include "host/settings/page_ranges.h"
#include "host/settings/ppd_texts.h"
#include "host/words.h"
#include "platform/ppd_marks.h"

#include <iterator>

namespace host {
namespace {

constexpr char kCollated[] = "separate-documents-collated-copies";
constexpr char kUncollated[] = "separate-documents-uncollated-copies";

struct Home {
    Setting setting;
    QList<const char *> ppdOptions; ///< the first that the PPD has
    const char *cupsOption;         ///< null where only a PPD can have the setting
    const char *cupsDefault;        ///< empty where CUPS does without a value
};

const QList<Home> &homes() {
    static const QList<Home> table = {
        {Setting::Copies, {}, "copies", "1"},
        {Setting::Collate, {"Collate"}, "multiple-document-handling", kUncollated},
        {Setting::Pages, {}, "page-ranges", ""},
        {Setting::Orientation, {}, "orientation-requested", ""},
        {Setting::NumberUp, {}, "number-up", "1"},
        {Setting::Sides,
         {"Duplex", "JCLDuplex", "EFDuplex", "EFDuplexing", "KD03Duplex"},
         nullptr,
         ""},
        {Setting::PaperSize, {"PageSize"}, nullptr, ""},
        {Setting::PaperSource, {"InputSlot"}, nullptr, ""},
        {Setting::PaperType, {"MediaType"}, nullptr, ""},
    };
    return table;
}

const Home &homeOf(Setting setting) {
    return homes()[static_cast<int>(setting)];
}

/// RFC 8011, 5.2.10.
constexpr struct {
    const char *value;
    const char *text;
} kOrientations[] = {
    {"3", QT_TRANSLATE_NOOP("host", "Portrait")},
    {"4", QT_TRANSLATE_NOOP("host", "Landscape")},
    {"6", QT_TRANSLATE_NOOP("host", "Portrait, upside down")},
    {"5", QT_TRANSLATE_NOOP("host", "Landscape, upside down")},
};

constexpr const char *kNumbersUp[] = {"1", "2", "4", "6", "9", "16"};

constexpr const char *kYes[] = {"True", "On", "Yes", "Collate", "Collated"};
constexpr const char *kNo[] = {"False", "Off", "No", "None", "Uncollated"};

template <std::size_t Count>
const ppd_choice_t *firstOf(const ppd_option_t &option, const char *const (&keywords)[Count]) {
    for (const char *keyword : keywords)
        if (const ppd_choice_t *choice = findChoice(option, QString::fromLatin1(keyword)))
            return choice;
    return nullptr;
}

template <std::size_t Count>
bool isOneOf(const QString &text, const char *const (&words)[Count]) {
    for (const char *word : words)
        if (text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

bool isSame(const QString &a, const char *b) {
    return a.compare(QLatin1String(b), Qt::CaseInsensitive) == 0;
}

/// A value of CUPS' option in its one form; nothing for one that it can't have.
std::optional<QString> cleaned(Setting setting, const QString &value) {
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    switch (setting) {
    case Setting::Copies:
        if (!isNumber || number < 1 || number > JobSettings::kMostCopies)
            return {};
        return QString::number(number);
    case Setting::Collate:
        if (!isSame(value, kCollated) && !isSame(value, kUncollated))
            return {};
        return value.toLower();
    case Setting::Pages: {
        if (value.isEmpty())
            return QString();
        const PageRanges ranges = readPageRanges(value);
        if (!ranges.problem.isNull())
            return {};
        return ranges.value == QLatin1String("1-") ? QString() : ranges.value;
    }
    case Setting::Orientation:
        if (value.isEmpty())
            return QString();
        return isNumber && number >= 3 && number <= 6 ? std::optional(QString::number(number))
                                                      : std::nullopt;
    case Setting::NumberUp:
        return isOneOf(value, kNumbersUp) ? std::optional(value) : std::nullopt;
    default:
        return {};
    }
}

QString withoutOption(Setting setting) {
    switch (setting) {
    case Setting::Sides:
        return HostWords::tr("This printer doesn't offer to print on both sides.");
    case Setting::PaperSize:
        return HostWords::tr("This printer doesn't offer a choice of paper sizes.");
    case Setting::PaperSource:
        return HostWords::tr("This printer doesn't offer a choice of paper sources.");
    default:
        return HostWords::tr("This printer doesn't offer a choice of paper types.");
    }
}

} // namespace

QList<SettingChoice> choicesOf(const ppd_option_t &option) {
    QList<SettingChoice> list;
    for (int i = 0; i < option.num_choices; ++i)
        list.append({QString::fromUtf8(option.choices[i].choice), choiceText(option.choices[i])});
    return list;
}

QString defaultChoice(const ppd_option_t &option, const OptionList &serverDefaults) {
    const auto told = defaultValue(serverDefaults, QString::fromUtf8(option.keyword));
    return told && findChoice(option, *told) ? *told : QString::fromUtf8(option.defchoice);
}

const QList<Setting> &JobSettings::all() {
    static const QList<Setting> settings = [] {
        QList<Setting> list;
        for (const Home &home : homes())
            list.append(home.setting);
        return list;
    }();
    return settings;
}

JobSettings::JobSettings(ppd_file_t *ppd, const OptionList &serverDefaults,
                         const OptionList &userDefaults)
    : m_ppd(ppd), m_serverDefaults(serverDefaults), m_userDefaults(userDefaults) {
    for (const Home &home : homes()) {
        if (!isOfCups(home.setting))
            continue;
        m_values.insert(home.setting, queueDefault(home.setting));
        if (const auto own = defaultValue(m_userDefaults, QLatin1String(home.cupsOption)))
            setValue(home.setting, *own);
    }
}

ppd_option_t *JobSettings::ppdOption(Setting setting) const {
    for (const char *keyword : homeOf(setting).ppdOptions)
        if (ppd_option_t *option = findOption(m_ppd, QLatin1String(keyword)))
            return option;
    return nullptr;
}

bool JobSettings::isOfCups(Setting setting) const {
    return homeOf(setting).cupsOption && !ppdOption(setting);
}

QString JobSettings::key(Setting setting) const {
    if (const ppd_option_t *option = ppdOption(setting))
        return QString::fromUtf8(option->keyword);
    const Home &home = homeOf(setting);
    return QLatin1String(home.cupsOption ? home.cupsOption : home.ppdOptions.first());
}

QString JobSettings::nameOf(Setting setting) const {
    if (const ppd_option_t *option = ppdOption(setting))
        return optionText(*option);
    switch (setting) {
    case Setting::Copies:
        return HostWords::tr("Copies");
    case Setting::Collate:
        return HostWords::tr("Collate");
    case Setting::Pages:
        return HostWords::tr("Pages");
    case Setting::Orientation:
        return HostWords::tr("Orientation");
    default:
        return HostWords::tr("Pages per side");
    }
}

QString JobSettings::whyNot(Setting setting) const {
    const ppd_option_t *option = ppdOption(setting);
    if (!option && !homeOf(setting).cupsOption)
        return withoutOption(setting);
    if (!option && m_toFile)
        return HostWords::tr("A file has the whole document in it, once and as it is.");
    if (setting == Setting::Collate) {
        if (option && (!firstOf(*option, kYes) || !firstOf(*option, kNo)))
            return HostWords::tr("Set this among the printer's own options.");
        if (copies() < 2)
            return HostWords::tr("There is only one copy.");
    }
    return {};
}

QList<SettingChoice> JobSettings::choices(Setting setting) const {
    QList<SettingChoice> list;
    if (const ppd_option_t *option = ppdOption(setting))
        return choicesOf(*option);
    if (setting == Setting::Orientation) {
        // Nothing told means the server's default.
        if (queueDefault(setting).isEmpty())
            list.append({QString(), textOf(setting, {})});
        for (const auto &[value, text] : kOrientations)
            list.append({QLatin1String(value), HostWords::tr(text)});
    } else if (setting == Setting::NumberUp) {
        for (const char *number : kNumbersUp)
            list.append({QLatin1String(number), textOf(setting, QLatin1String(number))});
    }
    return list;
}

QString JobSettings::value(Setting setting) const {
    const ppd_option_t *option = ppdOption(setting);
    if (!option)
        return m_values.value(setting);
    const ppd_choice_t *marked = markedChoice(*option);
    if (!marked && setting == Setting::PaperSize) // one of the two is marked
        if (const ppd_option_t *region = findOption(m_ppd, QStringLiteral("PageRegion")))
            marked = markedChoice(*region);
    return marked ? QString::fromUtf8(marked->choice) : QString();
}

QString JobSettings::queueDefault(Setting setting) const {
    if (const ppd_option_t *option = ppdOption(setting))
        return defaultChoice(*option, m_serverDefaults);
    const auto told = defaultValue(m_serverDefaults, key(setting));
    const auto usable = told ? cleaned(setting, *told) : std::nullopt;
    return usable ? *usable : QLatin1String(homeOf(setting).cupsDefault);
}

QString JobSettings::textOf(Setting setting, const QString &value) const {
    if (const ppd_option_t *option = ppdOption(setting)) {
        const ppd_choice_t *choice = findChoice(*option, value);
        return choice ? choiceText(*choice) : value;
    }
    switch (setting) {
    case Setting::Collate:
        return isSame(value, kCollated) ? HostWords::tr("Yes") : HostWords::tr("No");
    case Setting::Pages:
        return value.isEmpty() ? HostWords::tr("All pages") : value;
    case Setting::Orientation:
        for (const auto &[keyword, text] : kOrientations)
            if (value == QLatin1String(keyword))
                return HostWords::tr(text);
        return HostWords::tr("As in the document");
    default:
        return value;
    }
}

bool JobSettings::setValue(Setting setting, const QString &value) {
    if (const ppd_option_t *option = ppdOption(setting))
        return markChoice(m_ppd, option->keyword, value.toUtf8().constData());
    const auto usable = cleaned(setting, value);
    if (!usable ||
        (setting == Setting::Orientation && usable->isEmpty() && !queueDefault(setting).isEmpty()))
        return false;
    m_values.insert(setting, *usable);
    return true;
}

bool JobSettings::isCollated() const {
    const QString now = value(Setting::Collate);
    return ppdOption(Setting::Collate) ? isOneOf(now, kYes) : isSame(now, kCollated);
}

bool JobSettings::setCollated(bool collated) {
    const ppd_option_t *option = ppdOption(Setting::Collate);
    if (!option)
        return setValue(Setting::Collate, QLatin1String(collated ? kCollated : kUncollated));
    const ppd_choice_t *choice = collated ? firstOf(*option, kYes) : firstOf(*option, kNo);
    return choice && markChoice(m_ppd, option->keyword, choice->choice);
}

bool JobSettings::takeOption(const QString &name, const QString &value, bool *taken) {
    *taken = true;
    if (const ppd_option_t *option = findOption(m_ppd, name))
        return markChoice(m_ppd, option->keyword, value.toUtf8().constData());
    if (isSame(name, "landscape"))
        return isOneOf(value, kNo) || setValue(Setting::Orientation, QStringLiteral("4"));
    if (isSame(name, "Collate"))
        return setCollated(isOneOf(value, kYes));
    if (isSame(name, "multiple-document-handling"))
        return setCollated(!isSame(value, kUncollated));
    for (const Home &home : homes())
        if (home.cupsOption && isSame(name, home.cupsOption))
            return setValue(home.setting, value);
    if (const ppd_option_t *duplex = ppdOption(Setting::Sides); duplex && isSame(name, "sides"))
        return markSides(m_ppd, *duplex, value);
    if (isSame(name, "media") && ppdOption(Setting::PaperSize))
        return markMedia(m_ppd, value);
    *taken = false;
    return true;
}

OptionList JobSettings::takeOptions(const OptionList &options, QStringList *problems) {
    OptionList others;
    for (const auto &[name, value] : options) {
        bool taken = false;
        if (!takeOption(name, value, &taken) && problems) {
            const bool isPrivate = isCustom(value) || isSecretKey(name); // it may be a PIN
            problems->append(HostWords::tr("%1: “%2” can't be used with this printer")
                                 .arg(name, isPrivate ? redacted(value) : value));
        }
        if (!taken)
            others.append({name, value});
    }
    return others;
}

OptionList JobSettings::jobOptions() const {
    OptionList options;
    if (m_toFile)
        return options;
    for (auto row = m_values.begin(); row != m_values.end(); ++row) {
        const Home &home = homeOf(row.key());
        const QString name = QLatin1String(home.cupsOption);
        const QString usual = QLatin1String(home.cupsDefault);
        const auto differs = [&](const OptionList &defaults) {
            const auto told = defaultValue(defaults, name);
            return told && cleaned(row.key(), *told).value_or(usual) != usual;
        };
        if (row->isEmpty() && row.key() == Setting::Pages && differs(m_serverDefaults))
            options.append({name, QStringLiteral("1-")});
        else if (!row->isEmpty() &&
                 (*row != usual || differs(m_serverDefaults) || differs(m_userDefaults)))
            options.append({name, *row});
    }
    return options;
}

} // namespace host
