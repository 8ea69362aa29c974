#include "platform/ppd_marks.h"

#include <cstddef>
#include <cstring>

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// strcasecmp follows the locale, in which "PRINT" need not be "print".
bool equalNoCase(const char *a, const char *b, std::size_t length = SIZE_MAX) {
    for (std::size_t i = 0; i < length; ++i) {
        if (lower(a[i]) != lower(b[i]))
            return false;
        if (a[i] == '\0')
            return true;
    }
    return true;
}

constexpr const char *kLibcupsOptions[] = {
    "PageSize", "PageRegion", "InputSlot", "ManualFeed", "AP_D_InputSlot",
};

bool isForLibcups(const ppd_option_t *option, const ppd_choice_t *choice) {
    if (option->ui == PPD_UI_PICKMANY || equalNoCase(choice->choice, "Custom"))
        return true;
    for (const char *keyword : kLibcupsOptions)
        if (equalNoCase(option->keyword, keyword))
            return true;
    return false;
}

ppd_choice_t *findChoice(const ppd_option_t *option, const char *choice) {
    for (int i = 0; i < option->num_choices; ++i)
        if (std::strcmp(option->choices[i].choice, choice) == 0)
            return &option->choices[i];
    for (int i = 0; i < option->num_choices; ++i)
        if (equalNoCase(option->choices[i].choice, choice))
            return &option->choices[i];
    return nullptr;
}

bool isCustomValue(const char *choice) {
    return choice[0] == '{' || equalNoCase(choice, "Custom.", std::strlen("Custom."));
}

} // namespace

bool markChoice(ppd_file_t *ppd, const char *option, const char *choice) {
    ppd_option_t *found = ppd && option && choice ? ppdFindOption(ppd, option) : nullptr;
    if (!found)
        return false;
    if (isCustomValue(choice)) {
        ppd_choice_t *custom = findChoice(found, "Custom");
        if (!custom)
            return false;
        ppdMarkOption(ppd, found->keyword, choice); // a custom value may differ from the marked one
        return custom->marked != 0;
    }
    ppd_choice_t *wanted = findChoice(found, choice);
    if (!wanted)
        return false;
    if (wanted->marked)
        return true;
    if (isForLibcups(found, wanted)) {
        ppdMarkOption(ppd, found->keyword, wanted->choice);
        return wanted->marked != 0;
    }
    for (int i = 0; i < found->num_choices; ++i) {
        ppd_choice_t &other = found->choices[i];
        if (!other.marked)
            continue;
        other.marked = 0;
        cupsArrayRemove(ppd->marked, &other);
    }
    wanted->marked = 1;
    cupsArrayAdd(ppd->marked, wanted); // the list that ppdFindMarkedChoice searches
    return true;
}
