#include "host/serve/wanted_job.h"

#include "host/cups_server.h"
#include "host/custom_value.h"
#include "host/host_error.h"
#include "host/presets/applied_preset.h"
#include "host/presets/preset_store.h"
#include "host/serve/custom_choice.h"
#include "host/serve/request.h"
#include "host/settings/ppd_texts.h"
#include "host/settings/secrets.h"
#include "host/words.h"

namespace host {
namespace {

bool isNamed(const QJsonObject &object, const QString &name) {
    const QStringList keys = object.keys();
    return keys.contains(name, Qt::CaseInsensitive);
}

bool hasInstance(const QueueJob &job, const QString &name) {
    return job.instances().contains(name, Qt::CaseInsensitive);
}

} // namespace

WantedJob::WantedJob(QueueDetails details, PDEPlugin &plugin, const Request &request)
    : m_job(std::move(details), plugin, false), m_index(m_job.ppd()) {
    usePreset(request);
    const QJsonObject choices = request.object("choices");
    takeChoices(choices, false);
    takeChoices(request.object("options"), true);
    // The page size goes first, and the rest in the PPD's order, as from a preset.
    Preset own;
    own.choices = m_choices;
    applyPreset(own, m_job.ppd(), *m_job.stage().callback().printSettings());
    takeSettings(request.object("settings"));
    if (choices.size() == 1)
        m_chosenLast = choices.begin().key();
    lookAtCustomValues();
    lookAtWhatIsSent();
}

WantedJob::~WantedJob() {
    forgetSecrets(m_job.ppd());
}

void WantedJob::tell(Problem::Kind kind, const QString &option, const QString &why) {
    m_problems.append({kind, option, why});
}

void WantedJob::usePreset(const Request &request) {
    const QString name = request.text("preset"), instance = request.text("instance");
    if (!instance.isNull() && !hasInstance(m_job, instance))
        throw HostError(instance,
                        HostWords::tr("“%1” has no instance of this name").arg(m_job.queue()));
    if (name.isNull()) {
        m_notes = m_job.useDefaults(instance);
        return;
    }
    Preset preset = PresetStore().load(m_job.queue(), name);
    // A job that was to be secured mustn't be printed without its PIN because nobody was told.
    for (const QString &key : std::exchange(preset.enterAgain, {}))
        if (!isNamed(request.object("choices"), key) && !isNamed(request.object("options"), key) &&
            !isNamed(request.object("settings"), key))
            tell(Problem::Kind::MissingValue, key,
                 HostWords::tr("passwords aren't kept in presets; enter it again"));
    m_notes = m_job.use(preset);
}

void WantedJob::takeChoices(const QJsonObject &choices, bool othersToo) {
    for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
        if (const ppd_option_t *option = findOption(m_job.ppd(), choice.key()))
            takeChoice(*option, choice.key(), choice.value());
        else
            takeOther(choice.key(), choice.value(), othersToo);
    }
}

void WantedJob::takeChoice(const ppd_option_t &option, const QString &name,
                           const QJsonValue &value) {
    const QString keyword = QString::fromUtf8(option.keyword);
    const QString text = plainText(value);
    QString why, choice;
    if (m_choices.contains(keyword)) {
        tell(Problem::Kind::GivenTwice, name, HostWords::tr("This option is given twice."));
    } else if (value.isObject() || isCustom(text)) {
        choice = customChoice(m_job.ppd(), option, value, &why);
        if (choice.isNull())
            tell(Problem::Kind::BadValue, name, why);
    } else if (text.isEmpty() || !findChoice(option, text)) {
        tell(Problem::Kind::UnknownChoice, name, HostWords::tr("This option has no such choice."));
    } else {
        choice = text;
    }
    if (!choice.isNull())
        m_choices.insert(keyword, {choice});
}

/// An option that isn't the PPD's: a common setting in CUPS' form, or one that is sent as it is.
void WantedJob::takeOther(const QString &name, const QJsonValue &value, bool othersToo) {
    const QString text = plainText(value);
    QStringList refused;
    const OptionList rest =
        text.isNull() ? OptionList() : m_job.settings().takeOptions({{name, text}}, &refused);
    if (text.isNull() || !refused.isEmpty())
        tell(Problem::Kind::BadValue, name, HostWords::tr("This option can't have such a value."));
    else if (othersToo)
        m_others += rest;
    else if (!rest.isEmpty())
        tell(Problem::Kind::UnknownOption, name, HostWords::tr("This printer has no such option."));
}

void WantedJob::takeSettings(const QJsonObject &settings) {
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        const QString text = plainText(setting.value());
        switch (PMPrintSettingsSetValue(m_job.stage().callback().printSettings(), setting.key(),
                                        text, false)) {
        case kPMNoError:
            break;
        case kPMLocked:
            tell(Problem::Kind::Locked, setting.key(), HostWords::tr("This setting is locked."));
            break;
        default:
            tell(Problem::Kind::BadValue, setting.key(),
                 HostWords::tr("This option can't have such a value."));
        }
    }
}

/// Values may also stand from the defaults or the preset, and a printer takes only what fits.
void WantedJob::lookAtCustomValues() {
    eachPpdOption(m_job.ppd(), [this](const ppd_group_t &, const ppd_option_t &option) {
        const QString keyword = QString::fromUtf8(option.keyword);
        int count = 0;
        bool isCustomMarked = false;
        for (int i = 0; i < option.num_choices; ++i)
            if (option.choices[i].marked) {
                ++count;
                isCustomMarked |= isCustom(option.choices[i]);
            }
        if (count > 1)
            m_notes.append(HostWords::tr("%1: %2").arg(
                optionText(option), HostWords::tr("only the last of its choices can be sent")));
        if (!isCustomMarked)
            return;
        const qsizetype before = m_problems.size();
        for (const CustomParameter &parameter : customParameters(m_job.ppd(), keyword)) {
            const bool isMissing = parameter.isSecret() && parameter.value.isEmpty();
            const QString problem = isMissing
                                        ? HostWords::tr("“%1” is missing.").arg(parameter.text)
                                        : problemOf(parameter, parameter.value);
            if (!problem.isNull())
                tell(parameter.value.isEmpty() ? Problem::Kind::MissingValue
                                               : Problem::Kind::BadValue,
                     keyword, problem);
        }
        if (m_problems.size() == before && !customValueFits(m_job.ppd(), option))
            tell(Problem::Kind::BadValue, keyword,
                 HostWords::tr("This option can't have such a value."));
    });
}

void WantedJob::lookAtWhatIsSent() {
    for (const auto &[name, value] : options())
        if (const QString why = sendingProblem(name, value); !why.isNull())
            tell(Problem::Kind::NotSendable, name, why);
}

OptionList WantedJob::options() const {
    ToSend what = m_job.toSend();
    what.otherOptions += m_others;
    return optionsOf(what);
}

OptionList WantedJob::ready() {
    if (m_job.ppd())
        m_job.stage().session().print();
    return options();
}

} // namespace host
