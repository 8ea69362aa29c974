#include "host/presets/applied_preset.h"

#include "host/custom_value.h"
#include "host/words.h"
#include "platform/ppd_marks.h"
#include "platform/utf8.h"

#include <algorithm>
#include <functional>

namespace host {
namespace {

constexpr char kInstallable[] = "InstallableOptions";

using OptionVisitor = std::function<void(ppd_option_t &, bool installable)>;

void eachOption(ppd_group_t &group, bool installable, const OptionVisitor &visit) {
    installable |= !qstricmp(group.name, kInstallable);
    for (int i = 0; i < group.num_options; ++i)
        visit(group.options[i], installable);
    for (int i = 0; i < group.num_subgroups; ++i)
        eachOption(group.subgroups[i], installable, visit);
}

void eachOption(ppd_file_t *ppd, const OptionVisitor &visit) {
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        eachOption(ppd->groups[i], false, visit);
}

bool isPageSize(const QString &option) {
    return option.compare(QLatin1String("PageSize"), Qt::CaseInsensitive) == 0;
}

bool takesMany(const ppd_option_t &option) {
    return option.ui == PPD_UI_PICKMANY;
}

bool isCustom(const ppd_choice_t &choice) {
    return !qstricmp(choice.choice, "Custom");
}

bool isCustom(const QString &choice) {
    return choice.startsWith(u'{') ||
           choice.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive) ||
           choice.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0;
}

QString titleOf(const ppd_option_t &option) {
    const QString text = wholeCharacters(QByteArrayView(option.text));
    return text.isEmpty() ? QString::fromUtf8(option.keyword) : text;
}

QString about(const ppd_option_t &option, const QString &words) {
    return titleOf(option) + QStringLiteral(": ") + words;
}

/// Marks for one PPD, told of in words where they fail.
class Marker {
public:
    Marker(ppd_file_t *ppd, QStringList &problems) : m_ppd(ppd), m_problems(problems) {}

    void mark(ppd_option_t &option, const QStringList &choices) {
        if (takesMany(option)) // marks add up
            unmark(option);
        for (const QString &choice : choices)
            mark(option, choice);
    }

private:
    void mark(ppd_option_t &option, const QString &choice) {
        const auto tell = [&](const QString &words) {
            m_problems.append(about(option, words.arg(choice)));
        };
        if (isCustom(choice)) {
            if (!ppdFindChoice(&option, "Custom"))
                return tell(HostWords::tr("a value of one's own (“%1”) is no longer taken"));
            const QStringList former = standing(option);
            if (!markText(option, choice) || !customValueFits(m_ppd, option)) {
                unmark(option);
                for (const QString &each : former)
                    markText(option, each);
                tell(HostWords::tr("“%1” is outside of what this printer takes"));
            }
        } else if (!markText(option, choice)) {
            tell(HostWords::tr("“%1” is no longer there"));
        }
    }

    /// The texts that make the option stand as it does, its custom parameters included.
    QStringList standing(const ppd_option_t &option) const {
        QStringList texts;
        const QString custom = customValueOf(m_ppd, option, Secrets::With).text;
        if (!custom.isNull())
            texts.append(custom);
        for (int i = 0; i < option.num_choices; ++i)
            if (option.choices[i].marked && !isCustom(option.choices[i]))
                texts.append(QString::fromUtf8(option.choices[i].choice));
        return texts;
    }

    bool markText(const ppd_option_t &option, const QString &choice) {
        return markChoice(m_ppd, option.keyword, choice.toUtf8().constData());
    }

    void unmark(ppd_option_t &option) {
        for (int i = 0; i < option.num_choices; ++i) {
            if (!option.choices[i].marked)
                continue;
            option.choices[i].marked = 0;
            cupsArrayRemove(m_ppd->marked, &option.choices[i]);
        }
    }

    ppd_file_t *m_ppd;
    QStringList &m_problems;
};

void tellMissingOptions(const Preset &preset, ppd_file_t *ppd, QStringList &problems) {
    for (auto row = preset.choices.begin(); row != preset.choices.end(); ++row)
        if (!ppd || !ppdFindOption(ppd, row.key().toUtf8().constData()))
            problems.append(
                HostWords::tr("“%1” is no longer a setting of this printer; the preset has “%2”")
                    .arg(row.key(), row->join(QStringLiteral(", "))));
}

void putSettings(const Preset &preset, PrintSettings &settings, QStringList &problems) {
    for (auto row = preset.settings.begin(); row != preset.settings.end(); ++row) {
        const PrintSettings::Entry *entry = settings.find(row.key());
        if (entry && entry->value == row->value && entry->locked == row->locked)
            continue;
        if (settings.set(row.key(), row->value, row->locked) != kPMNoError)
            problems.append(HostWords::tr("%1: is locked and stays “%2”")
                                .arg(row.key(), entry ? entry->value : QString()));
    }
}

bool hasItsSecrets(ppd_file_t *ppd, const ppd_option_t &option) {
    const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option.keyword);
    return marked && isCustom(*marked) && !customValueOf(ppd, option, Secrets::Without).lacksSecret;
}

void tellSecrets(const Preset &preset, ppd_file_t *ppd, QStringList &problems) {
    for (const QString &key : preset.enterAgain) {
        const ppd_option_t *option = ppd ? ppdFindOption(ppd, key.toUtf8().constData()) : nullptr;
        if (!option || !hasItsSecrets(ppd, *option))
            problems.append((option ? titleOf(*option) : key) + QStringLiteral(": ") +
                            HostWords::tr("passwords aren't kept in presets; enter it again"));
    }
}

/// The choices of an option as a preset keeps them.
void keepChoices(ppd_file_t *ppd, const ppd_option_t &option, Preset &preset) {
    const QString keyword = QString::fromUtf8(option.keyword);
    QStringList kept;
    bool any = false;
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        if (!choice.marked)
            continue;
        any = true;
        if (!isCustom(choice)) {
            kept.append(QString::fromUtf8(choice.choice));
            continue;
        }
        const CustomValue value = customValueOf(ppd, option, Secrets::Without);
        if (!value.text.isNull())
            kept.append(value.text);
        if (value.hasSecret)
            preset.enterAgain.append(keyword);
    }
    if (!kept.isEmpty() || (takesMany(option) && !any))
        preset.choices.insert(keyword, kept);
}

} // namespace

QStringList applyPreset(const Preset &preset, ppd_file_t *ppd, PrintSettings &settings) {
    QStringList problems;
    Marker marker(ppd, problems);
    // Keys of a file that a person wrote may differ in case, as PPD keywords may.
    QMap<QString, QStringList> wanted;
    for (auto row = preset.choices.begin(); row != preset.choices.end(); ++row)
        wanted.insert(row.key().toLower(), *row);
    for (const bool first : {true, false})
        eachOption(ppd, [&](ppd_option_t &option, bool) {
            const QString keyword = QString::fromUtf8(option.keyword);
            const auto choices = wanted.constFind(keyword.toLower());
            if (isPageSize(keyword) == first && choices != wanted.constEnd())
                marker.mark(option, *choices);
        });
    tellMissingOptions(preset, ppd, problems);
    putSettings(preset, settings, problems);
    tellSecrets(preset, ppd, problems);
    return problems;
}

Preset presetOf(ppd_file_t *ppd, const QString &queue, const PrintSettings &settings,
                const QMap<QString, QString> &jobOptions) {
    Preset preset;
    preset.queue = queue;
    eachOption(ppd, [&](const ppd_option_t &option, bool installable) {
        if (!installable)
            keepChoices(ppd, option, preset);
    });
    for (auto row = jobOptions.begin(); row != jobOptions.end(); ++row) {
        if (isSecretKey(row.key()))
            preset.enterAgain.append(row.key());
        else
            preset.jobOptions.insert(row.key(), row.value());
    }
    for (auto row = settings.entries().begin(); row != settings.entries().end(); ++row) {
        if (isSecretKey(row.key()))
            preset.enterAgain.append(row.key());
        else
            preset.settings.insert(row.key(), row.value());
    }
    return preset;
}

} // namespace host
