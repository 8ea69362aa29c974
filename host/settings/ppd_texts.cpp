#include "host/settings/ppd_texts.h"

#include "platform/utf8.h"

namespace host {
namespace {

QString textOr(const char *text, const char *keyword) {
    const QString found = wholeCharacters(QByteArrayView(text)).simplified();
    return found.isEmpty() ? QString::fromUtf8(keyword) : found;
}

} // namespace

QString optionText(const ppd_option_t &option) {
    return textOr(option.text, option.keyword);
}

QString choiceText(const ppd_choice_t &choice) {
    return textOr(choice.text, choice.choice);
}

QString groupText(const ppd_group_t &group) {
    return textOr(group.text, group.name);
}

void eachPpdOption(ppd_file_t *ppd,
                   const std::function<void(const ppd_group_t &, ppd_option_t &)> &call) {
    const auto walk = [&](const auto &self, const ppd_group_t &main,
                          const ppd_group_t &group) -> void {
        for (int i = 0; i < group.num_options; ++i)
            call(main, group.options[i]);
        for (int i = 0; i < group.num_subgroups; ++i)
            self(self, main, group.subgroups[i]);
    };
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        walk(walk, ppd->groups[i], ppd->groups[i]);
}

ppd_option_t *findOption(ppd_file_t *ppd, const QString &keyword) {
    return ppd && !keyword.isEmpty() ? ppdFindOption(ppd, keyword.toUtf8().constData()) : nullptr;
}

const ppd_choice_t *findChoice(const ppd_option_t &option, const QString &choice) {
    const QByteArray wanted = isCustom(choice) ? QByteArray("Custom") : choice.toUtf8();
    for (const bool exact : {true, false})
        for (int i = 0; i < option.num_choices; ++i) {
            const char *keyword = option.choices[i].choice;
            if (exact ? wanted == keyword : !qstricmp(wanted.constData(), keyword))
                return &option.choices[i];
        }
    return nullptr;
}

const ppd_choice_t *markedChoice(const ppd_option_t &option) {
    for (int i = 0; i < option.num_choices; ++i)
        if (option.choices[i].marked)
            return &option.choices[i];
    return nullptr;
}

bool isCustom(const ppd_choice_t &choice) {
    return !qstricmp(choice.choice, "Custom");
}

bool isCustom(const QString &choice) {
    return choice.startsWith(u'{') ||
           choice.startsWith(QLatin1String("Custom."), Qt::CaseInsensitive) ||
           choice.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0;
}

bool isPageSize(const ppd_option_t &option) {
    return !qstricmp(option.keyword, "PageSize") || !qstricmp(option.keyword, "PageRegion");
}

} // namespace host
