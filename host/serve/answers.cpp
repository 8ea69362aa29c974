#include "host/serve/answers.h"

#include "host/conflicts/conflict_dialog.h"
#include "host/settings/custom_parameters.h"
#include "host/settings/ppd_texts.h"
#include "host/words.h"

#include <QJsonArray>

namespace host {
namespace {

QJsonValue textOrNull(const QString &text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

const char *kindWord(Problem::Kind kind) {
    static constexpr const char *kWords[] = {"unknownOption", "unknownChoice", "badValue",
                                             "missingValue",  "notSendable",   "givenTwice",
                                             "locked"};
    return kWords[int(kind)];
}

QJsonArray problemsJson(const QList<Problem> &problems) {
    QJsonArray list;
    for (const Problem &problem : problems)
        list.append(QJsonObject{{"option", problem.option},
                                {"problem", QLatin1String(kindWord(problem.kind))},
                                {"why", problem.why}});
    return list;
}

/// An option with a choice, in words, too.
QJsonObject pairJson(const ppd_option_t &option, const ppd_choice_t &choice, const QString &text) {
    return {{"option", QString::fromUtf8(option.keyword)},
            {"choice", QString::fromUtf8(choice.choice)},
            {"text", text}};
}

QJsonArray conflictsJson(const QList<Conflict> &conflicts) {
    QJsonArray list;
    for (const Conflict &conflict : conflicts) {
        QJsonArray parties;
        for (const Party &party : conflict)
            parties.append(pairJson(*party.option, *party.choice, party.text()));
        list.append(QJsonObject{{"text", textOf(conflict)}, {"parties", parties}});
    }
    return list;
}

QJsonArray changesJson(const QList<Change> &changes) {
    QJsonArray list;
    for (const Change &change : changes)
        list.append(pairJson(*change.option, *change.to, change.text()));
    return list;
}

const char *typeWord(ppd_cptype_t type) {
    switch (type) {
    case PPD_CUSTOM_INT:
        return "int";
    case PPD_CUSTOM_POINTS:
        return "points";
    case PPD_CUSTOM_STRING:
        return "text";
    case PPD_CUSTOM_PASSCODE:
        return "passcode";
    case PPD_CUSTOM_PASSWORD:
        return "password";
    default:
        return "real";
    }
}

QJsonArray parametersJson(ppd_file_t *ppd, const QString &option) {
    QJsonArray list;
    for (const CustomParameter &parameter : customParameters(ppd, option))
        list.append(QJsonObject{
            {"name", QString::fromUtf8(parameter.name)},
            {"text", parameter.text},
            {"type", QLatin1String(typeWord(parameter.type))},
            {"least", parameter.least},
            {"greatest", parameter.greatest},
            // A text may be an account.
            {"value", parameter.isText() ? QJsonValue() : QJsonValue(parameter.value.toDouble())}});
    return list;
}

const char *uiWord(ppd_ui_t ui) {
    switch (ui) {
    case PPD_UI_BOOLEAN:
        return "boolean";
    case PPD_UI_PICKMANY:
        return "many";
    default:
        return "one";
    }
}

QJsonObject optionJson(const ppd_option_t &option, WantedJob &wanted,
                       const OptionList &serverDefaults) {
    const QString keyword = QString::fromUtf8(option.keyword);
    QJsonArray choices, marked;
    for (int i = 0; i < option.num_choices; ++i) {
        const ppd_choice_t &choice = option.choices[i];
        const QString word = QString::fromUtf8(choice.choice);
        if (choice.marked)
            marked.append(word);
        choices.append(
            QJsonObject{{"choice", word},
                        {"text", choiceText(choice)},
                        {"why", textOrNull(wanted.index().reasonAgainst(keyword, word))}});
    }
    const QString usual = defaultChoice(option, serverDefaults);
    return {{"option", keyword},
            {"text", optionText(option)},
            {"kind", QLatin1String(uiWord(option.ui))},
            {"default", isCustom(usual) ? QStringLiteral("Custom") : usual},
            {"marked", marked},
            {"choices", choices},
            {"parameters", parametersJson(wanted.job().ppd(), keyword)}};
}

QJsonArray groupsJson(WantedJob &wanted) {
    ppd_file_t *const ppd = wanted.job().ppd();
    const OptionList serverDefaults = wanted.job().toSend().serverDefaults;
    const bool hasSize = findOption(ppd, QStringLiteral("PageSize"));
    QJsonArray groups, options;
    const ppd_group_t *group = nullptr;
    const auto finish = [&] {
        if (!options.isEmpty())
            groups.append(QJsonObject{{"group", QString::fromUtf8(group->name)},
                                      {"text", groupText(*group)},
                                      {"options", std::exchange(options, {})}});
    };
    eachPpdOption(ppd, [&](const ppd_group_t &main, const ppd_option_t &option) {
        if (&main != group)
            finish();
        group = &main;
        if (!hasSize || qstricmp(option.keyword, "PageRegion") != 0) // which follows the size
            options.append(optionJson(option, wanted, serverDefaults));
    });
    finish();
    return groups;
}

const char *settingWord(Setting setting) {
    static constexpr const char *kWords[] = {"copies",      "collate",     "pages",
                                             "orientation", "numberUp",    "sides",
                                             "paperSize",   "paperSource", "paperType"};
    return kWords[int(setting)];
}

QJsonArray settingsJson(JobSettings &settings) {
    QJsonArray list;
    for (const Setting setting : JobSettings::all()) {
        if (!settings.ppdOption(setting) && !settings.isOfCups(setting))
            continue;
        QJsonArray choices;
        for (const SettingChoice &choice : settings.choices(setting))
            choices.append(QJsonObject{{"choice", choice.keyword}, {"text", choice.text}});
        const QString value = settings.value(setting), usual = settings.queueDefault(setting);
        list.append(QJsonObject{{"setting", QLatin1String(settingWord(setting))},
                                {"option", settings.key(setting)},
                                {"text", settings.nameOf(setting)},
                                {"of", settings.isOfCups(setting) ? "cups" : "printer"},
                                {"default", isCustom(usual) ? QStringLiteral("Custom") : usual},
                                {"value", value},
                                {"valueText", settings.textOf(setting, value)},
                                {"choices", choices}});
    }
    return list;
}

QJsonArray presetsJson(const PresetStore &store, const QString &queue) {
    QJsonArray list;
    for (const PresetRow &row : store.list(queue))
        list.append(QJsonObject{{"name", row.name}, {"problem", textOrNull(row.problem)}});
    return list;
}

} // namespace

QJsonObject queueJson(const QueueInfo &queue) {
    static constexpr const char *kStates[] = {"unknown", "idle", "printing", "paused"};
    return {{"name", queue.name},
            {"description", queue.description},
            {"location", queue.location},
            {"makeAndModel", queue.makeAndModel},
            {"state", QLatin1String(kStates[int(queue.state)])},
            {"stateText", stateLine(queue)},
            {"reasons", QJsonArray::fromStringList(queue.reasons)},
            {"message", queue.message},
            {"accepting", queue.acceptsJobs},
            {"default", queue.isDefault},
            {"instance", textOrNull(queue.instance)}};
}

QJsonObject offersJson(WantedJob &wanted, const PresetStore &store) {
    QueueJob &job = wanted.job();
    return {{"queue", job.queue()},
            {"panel", textOrNull(job.ppd() ? job.stage().session().findName() : QString())},
            {"groups", groupsJson(wanted)},
            {"settings", settingsJson(job.settings())},
            {"presets", presetsJson(store, job.queue())},
            {"instances", QJsonArray::fromStringList(job.instances())}};
}

QJsonObject verdictJson(const WantedJob &wanted) {
    const QList<Conflict> conflicts = wanted.index().standing();
    return {{"fits", conflicts.isEmpty() && wanted.problems().isEmpty()},
            {"conflicts", conflictsJson(conflicts)},
            {"resolution", changesJson(wanted.resolution())},
            {"problems", problemsJson(wanted.problems())},
            {"notes", QJsonArray::fromStringList(wanted.notes())}};
}

QString refusalOf(const WantedJob &wanted, bool anyway) {
    if (!wanted.problems().isEmpty()) {
        const Problem &first = wanted.problems().first();
        return HostWords::tr("%1: %2").arg(first.option, first.why);
    }
    const QList<Conflict> conflicts = wanted.index().standing();
    if (anyway || conflicts.isEmpty())
        return {};
    return HostWords::tr("The printer can't print these together:") + u' ' +
           textOf(conflicts.first());
}

QString stateWord(const JobState &state) {
    const bool isKnown =
        !state.isGone && state.state >= IPP_JSTATE_PENDING && state.state <= IPP_JSTATE_COMPLETED;
    return isKnown ? QString::fromLatin1(ippEnumString("job-state", state.state))
                   : QStringLiteral("unknown");
}

QJsonObject jobStateJson(const JobState &state) {
    return {{"state", stateWord(state)},
            {"finished", state.isFinished()},
            {"pages", qMax(0, state.pages)},
            {"message", safeLine(state.message)}};
}

} // namespace host
