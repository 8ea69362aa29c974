#include "ppd/ppd_query.h"

#include "platform/numbers.h"
#include "platform/utf8.h"
#include "ppd/ppd_keys.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <functional>

namespace {

constexpr qsizetype kNameBytes = 20; ///< an attribute's name with its NUL
constexpr size_t kNumberBytes = 256; ///< a number's digits with their NUL
constexpr unsigned int kMailboxBytes = 3;

struct Encoding {
    const char *ppdName;
    unsigned int number;
    const char *decoder;
};

const Encoding kEncodings[] = {
    {kISOLatin1, kEncodingISOLatin1, "ISO-8859-1"},
    {kWindowsANSI, kEncodingWindowsLatin1, "windows-1252"},
    {kJIS83_RKSJ, kEncodingMacJapanese, "Shift_JIS"},
    {kUTF_8, kEncodingUTF8, "UTF-8"},
    {kUTF8, kEncodingUTF8, "UTF-8"},
};

const char *decoderName(unsigned int number) {
    if (number == kEncodingMacRoman)
        return "macintosh";
    for (const Encoding &encoding : kEncodings)
        if (encoding.number == number)
            return encoding.decoder;
    return "UTF-8";
}

ppd_option_t *findOption(ppd_file_t *ppd, const char *key) {
    return ppd && key ? ppdFindOption(ppd, key) : nullptr;
}

/// @return the number of choices when none has that keyword
int findChoice(const ppd_option_t &option, const char *choice) {
    int i = 0;
    while (i < option.num_choices && std::strcmp(option.choices[i].choice, choice) != 0)
        ++i;
    return i;
}

/// @return -1 when the choice is none of the option's
int positionOf(const ppd_option_t &option, const ppd_choice_t *choice) {
    const std::less<const ppd_choice_t *> before;
    const ppd_choice_t *end = option.choices + option.num_choices;
    return before(choice, option.choices) || !before(choice, end)
               ? -1
               : static_cast<int>(choice - option.choices);
}

} // namespace

bool CheckPPDKeyIsExist(ppd_file_t *ppd, const char *key) {
    return findOption(ppd, key) != nullptr;
}

bool CDFKeyExist(ppd_file_t *ppd, const QString &name) {
    const QByteArray bytes = name.toUtf8();
    return !name.isNull() && bytes.size() < kNameBytes &&
           ppdFindAttr_ALT(ppd, bytes.constData(), nullptr);
}

ppd_attr_t *ppdFindAttr_ALT(ppd_file_t *ppd, const char *name, const char *) {
    if (!ppd || !name)
        return nullptr;
    const size_t length = std::strlen(name);
    for (int i = 0; i < ppd->num_attrs; ++i)
        if (std::strncmp(ppd->attrs[i]->name, name, length) == 0)
            return ppd->attrs[i];
    return nullptr;
}

int GetPPDKeyOptionCount(ppd_file_t *ppd, const char *key) {
    const ppd_option_t *option = findOption(ppd, key);
    return option ? option->num_choices : 0;
}

int GetValueFromPPD(ppd_file_t *ppd, const char *key, const QString *values, int count) {
    const ppd_option_t *option = findOption(ppd, key);
    if (!option || !values)
        return -1;
    const QString defaultChoice = QString::fromUtf8(option->defchoice);
    for (int i = 0; i < count; ++i)
        if (values[i] == defaultChoice)
            return i;
    return -1;
}

int GetUIDefaultValueFromPPD(ppd_file_t *ppd, const char *key) {
    const ppd_option_t *option = findOption(ppd, key);
    if (!option)
        return -1;
    const int index = findChoice(*option, option->defchoice);
    return index < option->num_choices ? index : -1;
}

int GetChoiceIndex(ppd_file_t *ppd, const char *key, const char *choice) {
    const ppd_option_t *option = findOption(ppd, key);
    return option && choice ? findChoice(*option, choice) : 0;
}

int GetIndexFromPPDByKeyword(ppd_option_t *option, const char *choice) {
    if (!option || !choice)
        return 0;
    const int index = findChoice(*option, choice);
    return index < option->num_choices ? index : 0;
}

int GetIndexOfMarkedOptionWithKey(ppd_option_t *option, ppd_file_t *ppd, const char *key) {
    if (!option)
        return -1;
    const ppd_choice_t *choice = ppd && key ? ppdFindMarkedChoice(ppd, key) : nullptr;
    if (!choice)
        choice = ppdFindChoice(option, option->defchoice);
    return choice ? positionOf(*option, choice) : -1;
}

int GetUIDefaultFromPPD(ppd_file_t *ppd, const char *key, QString &out) {
    const ppd_option_t *option = findOption(ppd, key);
    out = option ? QString::fromUtf8(option->defchoice) : QString();
    return 0;
}

int GetUITitleFromPPD(ppd_file_t *ppd, const char *key, QString &out) {
    out = QString();
    if (const ppd_option_t *option = findOption(ppd, key)) {
        unsigned int encoding;
        GetCFStringEncodingFromPPD(ppd, &encoding);
        out = labelOr(option->text, encoding, option->keyword);
    }
    return 0;
}

void GetValueFromPPDByIndex(ppd_file_t *ppd, const char *key, char *out, int index) {
    const ppd_option_t *option = findOption(ppd, key);
    if (option && out && index >= 0 && index < option->num_choices)
        std::memcpy(out, option->choices[index].choice,
                    std::strlen(option->choices[index].choice) + 1);
}

std::unique_ptr<PDEChoiceArray> ArrayFromPPDOption(ppd_option_t *option) {
    if (!option)
        return nullptr;
    auto choices = std::make_unique<PDEChoiceArray>();
    choices->reserve(option->num_choices);
    for (int i = 0; i < option->num_choices; ++i)
        choices->push_back(PDEChoiceKRVImageOptions::choiceWithChoice(&option->choices[i]));
    return choices;
}

int FindPPDKeyPairsMatch(const ChoiceRows &rows, const QString &key, const QString &choice) {
    for (qsizetype i = 0; i < rows.size(); ++i)
        if (rows[i].option == key && rows[i].choice == choice)
            return static_cast<int>(i);
    return -1;
}

void GetCFStringEncodingFromPPD(ppd_file_t *ppd, unsigned int *out) {
    if (!out)
        return;
    *out = kEncodingMacRoman;
    if (ppd && ppd->lang_encoding)
        for (const Encoding &encoding : kEncodings)
            if (std::strcmp(ppd->lang_encoding, encoding.ppdName) == 0) {
                *out = encoding.number;
                break;
            }
}

QString decodePpdText(const char *text, unsigned int encoding) {
    if (!text)
        return {};
    // A decoder keeps the bytes of an unfinished character for a next call, which never comes.
    QStringDecoder decode(decoderName(encoding));
    const QString decoded = decode(QByteArrayView(text, qsizetype(std::strlen(text))));
    return decoded.isNull() ? QStringLiteral("") : decoded;
}

QString labelOr(const char *text, unsigned int encoding, const char *keyword) {
    const QString label = decodePpdText(text, encoding);
    return label.isEmpty() ? QString::fromUtf8(keyword) : label;
}

int getIntFromString(const char *text, unsigned int n) {
    char digits[kNumberBytes] = {};
    size_t count = 0;
    for (unsigned int i = 0; text && i < n && count < kNumberBytes - 1; ++i)
        if (text[i] >= '0' && text[i] <= '9')
            digits[count++] = text[i];
    return leadingInteger(digits);
}

int GetPWMiniIntValueFromPPD(ppd_file_t *ppd, const char *key) {
    const ppd_option_t *option = findOption(ppd, key);
    return option ? getIntFromString(option->defchoice,
                                     static_cast<unsigned int>(std::strlen(option->defchoice)))
                  : -1;
}

int GetSorvaniPWMiniIntValueFromPPD(ppd_file_t *ppd, const char *name) {
    const ppd_attr_t *attribute = ppdFindAttr_ALT(ppd, name, nullptr);
    for (const char *at = attribute ? attribute->value : nullptr; at && *at; ++at) {
        char *end;
        std::strtol(at, &end, 10);
        if (end != at)
            return leadingInteger(at);
    }
    return -1;
}

int GetMBMaxNumberFromPPD(ppd_file_t *ppd, const char *name) {
    const ppd_attr_t *attribute = ppdFindAttr_ALT(ppd, name, nullptr);
    if (!attribute || !attribute->value)
        return 0;
    unsigned int encoding;
    GetCFStringEncodingFromPPD(ppd, &encoding);
    const std::optional<QString> value = strictUtf8(attribute->value);
    if (!value)
        return 0;
    QStringEncoder encode(decoderName(encoding));
    const QByteArray bytes = encode(*value);
    const bool converts = bytes.size() < qsizetype(kNumberBytes) &&
                          decodePpdText(bytes.constData(), encoding) == *value;
    return converts ? getIntFromString(bytes.constData(), // past a short text stands a NUL
                                       std::min<unsigned int>(kMailboxBytes, bytes.size()))
                    : 0;
}
