#include "host/settings/sent_list.h"

#include "host/presets/preset.h"
#include "host/settings/custom_parameters.h"
#include "host/settings/job_options.h"
#include "host/settings/ppd_texts.h"
#include "host/words.h"

#include <QHash>
#include <QLocale>
#include <QStringList>

namespace host {
namespace {

bool isSame(const QString &a, const QString &b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// A custom value for a person: what was typed, in their own units' points.
QString customText(const ppd_option_t &option, const ppd_choice_t &choice,
                   const QList<CustomParameter> &parameters) {
    QStringList values;
    for (const CustomParameter &parameter : parameters) {
        QString value = parameter.isSecret() ? redacted(parameter.value) : parameter.value;
        if (!parameter.isText())
            value = QLocale().toString(value.toDouble(), 'g', 10);
        if (parameter.type == PPD_CUSTOM_POINTS)
            value = HostWords::tr("%1 pt").arg(value);
        values.append(value);
    }
    return HostWords::tr("%1: %2").arg(
        choiceText(choice),
        values.join(isPageSize(option) ? QStringLiteral(" × ") : QStringLiteral(", ")));
}

class Lister {
public:
    explicit Lister(const ToSend &what) : m_what(what), m_options(optionsOf(what)) {
        for (const auto &[name, value] : m_options)
            m_unlisted.insert(name.toLower(), value);
    }

    QList<SentRow> list() {
        eachPpdOption(m_what.ppd, [this](const ppd_group_t &group, const ppd_option_t &option) {
            addOption(group, option);
        });
        if (m_what.settings)
            for (auto entry = m_what.settings->entries().begin();
                 entry != m_what.settings->entries().end(); ++entry)
                addEntry(entry.key(), entry->value);
        if (m_what.job)
            for (const Setting setting : JobSettings::all())
                addCommon(setting);
        for (const auto &[name, value] : std::as_const(m_options))
            if (m_unlisted.contains(name.toLower()))
                addOther(name, value);
        return m_rows;
    }

private:
    /// Takes an option off those that are sent. @return as it is sent; null if it isn't
    QString take(const QString &name, const QString &shown) {
        return m_unlisted.remove(name.toLower()) ? name + u'=' + shown : QString();
    }

    void addOption(const ppd_group_t &group, const ppd_option_t &option) {
        const QString keyword = QString::fromUtf8(option.keyword);
        QStringList texts, keywords;
        QString shown, last;
        for (int i = 0; i < option.num_choices; ++i) {
            const ppd_choice_t &choice = option.choices[i];
            if (!choice.marked)
                continue;
            last = shown = QString::fromUtf8(choice.choice);
            QString text = choiceText(choice);
            if (isCustom(choice)) {
                const auto parameters = customParameters(m_what.ppd, keyword);
                last = customChoice(option, parameters);
                shown = redactedChoice(option, parameters);
                text = customText(option, choice, parameters);
            }
            keywords.append(last);
            texts.append(text);
        }
        // Of size and region one is marked; the other isn't a setting then.
        if (keywords.isEmpty() && !qstricmp(option.keyword, "PageRegion"))
            return;
        const QString usual = defaultChoice(option, m_what.serverDefaults);
        const ppd_choice_t *usualChoice = findChoice(option, usual);
        SentRow row;
        row.group = groupText(group);
        row.option = optionText(option);
        row.queueDefault = usualChoice ? choiceText(*usualChoice) : usual;
        row.chosen = texts.join(QStringLiteral(", "));
        row.isChanged = !isSame(keywords.join(u','), usual);
        // A print setting or an option of the job may have the PPD's keyword, and counts then.
        if (isSame(optionValue(m_options, keyword).value_or(QString()), last) && !last.isNull())
            row.sent = take(keyword, shown);
        m_rows.append(row);
    }

    QString shownValue(const QString &name, const QString &value) const {
        return isSecretKey(name) ? redacted(value) : value;
    }

    void addEntry(const QString &key, const QString &value) {
        SentRow row;
        row.group = HostWords::tr("Image options");
        row.option = key.section(u'.', -1); // the whole key stands where it is sent
        row.chosen = shownValue(key, value);
        row.isChanged = true;
        if (optionValue(m_options, key) == value)
            row.sent = take(key, row.chosen);
        m_rows.append(row);
    }

    void addCommon(Setting setting) {
        if (!m_what.job->isOfCups(setting))
            return; // the PPD's have their rows
        const QString key = m_what.job->key(setting);
        const QString value = m_what.job->value(setting);
        const QString usual = m_what.job->queueDefault(setting);
        SentRow row;
        row.group = HostWords::tr("Job");
        row.option = m_what.job->nameOf(setting);
        row.queueDefault = m_what.job->textOf(setting, usual);
        row.chosen = m_what.job->textOf(setting, value);
        row.isChanged = value != usual;
        if (const auto told = optionValue(m_options, key))
            row.sent = take(key, *told);
        m_rows.append(row);
    }

    void addOther(const QString &name, const QString &value) {
        SentRow row;
        row.group = HostWords::tr("Other");
        row.option = name;
        row.queueDefault = defaultValue(m_what.serverDefaults, name).value_or(QString());
        row.chosen = shownValue(name, value);
        row.isChanged = row.queueDefault != value;
        row.sent = take(name, row.chosen);
        m_rows.append(row);
    }

    const ToSend &m_what;
    OptionList m_options;
    QHash<QString, QString> m_unlisted; ///< those that are sent and have no row yet
    QList<SentRow> m_rows;
};

} // namespace

QString SentRow::sentText() const {
    return sent.isNull() ? HostWords::tr("not sent") : sent;
}

OptionList optionsOf(const ToSend &what) {
    if (what.job && what.job->isToFile())
        return jobOptionsToSend(what.ppd, nullptr, {});
    return jobOptionsToSend(what.ppd, what.settings,
                            (what.job ? what.job->jobOptions() : OptionList()) + what.otherOptions);
}

QList<SentRow> sentList(const ToSend &what) {
    return Lister(what).list();
}

} // namespace host
