#include "ppd/text_utils.h"

#include "platform/numbers.h"
#include "platform/utf8.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr ushort kSpace = 0x20;
constexpr ushort kIdeographicSpace = 0x3000;
constexpr qsizetype kTextBufferBytes = 256;

int unitWidth(QChar c) {
    return c.unicode() < 0x80 ? 1 : 2;
}

/// Tenths of a whole number, in 32 bits.
int timesTen(int value) {
    return static_cast<int>(value * int64_t(10));
}

int compare(int left, int right) {
    return left < right ? -1 : left > right;
}

int intValue(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return truncatedToInt(value.toDouble());
    case QMetaType::QString:
        return leadingInteger(value.toString().trimmed());
    default:
        return static_cast<int>(value.toLongLong());
    }
}

} // namespace

// --- numbers and their texts ---

char *itoa(int value, char *buffer, int size) {
    if (!buffer || size < 1)
        return nullptr;
    char *digit = buffer + size - 1;
    *digit = '\0';
    for (; value != 0 && digit > buffer; value /= 10)
        *--digit = static_cast<char>('0' + value % 10);
    return digit;
}

int GetIntegerLength(int value) {
    return std::snprintf(nullptr, 0, "%d", value);
}

void ConvertIntToFloatStr(const int *value, char *out, int size) {
    if (!value || !out || size < 1)
        return;
    std::string text = std::to_string(*value);
    if (text.size() == 1)
        text.insert(0, "0");
    text.insert(text.size() - 1, ".");
    std::fill_n(out, size, '\0');
    text.copy(out, size - 1);
}

int ConvertFloatStrToInt(const char *text) {
    if (!text)
        return 0;
    std::string digits(text);
    const size_t length = digits.size();
    if (length < 2)
        return timesTen(std::atoi(text));
    const bool pointed = digits.find('.') != std::string::npos;
    if (!pointed)
        return timesTen(std::atoi(text + std::strspn(text, "0")));
    const char last = digits.back();
    digits.pop_back();
    std::erase(digits, '.');
    digits.push_back(last);
    digits.resize(std::min(digits.size(), length - 1)); // takes off a point at the end
    return std::atoi(digits.c_str());
}

void filterHeadZero(char *text) {
    if (!text)
        return;
    const size_t zeros = std::strspn(text, "0");
    std::memmove(text, text + zeros, std::strlen(text + zeros) + 1);
}

void numstrtochar(char *text, int size) {
    if (!text || *text != '/')
        return;
    char *out = text;
    for (char *field = text + 1;; ++out) {
        char *end = field + std::strcspn(field, "/");
        const bool more = *end == '/';
        if (more && end - text < size)
            *end = '\0';
        const int value = std::atoi(field);
        out[0] = static_cast<char>(value >= 257 ? 0 : value);
        out[1] = '\0'; // at `end` or before it
        if (!more)
            return;
        field = end + 1;
    }
}

// --- texts ---

int GetStringPointCount(const QString &text) {
    return static_cast<int>(text.count(u'.'));
}

int GetStringPointIndex(const QString &text) {
    const qsizetype index = text.indexOf(u'.');
    return static_cast<int>(index < 0 ? text.size() : index) + 1;
}

bool ExistNumericString(const QString &text) {
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'1' && c <= u'9'; });
}

int RemoveAllSpaces(const QString &text, unsigned short *out) {
    if (!out)
        return 0;
    int count = 0;
    for (QChar c : text)
        if (c.unicode() != kSpace)
            out[count++] = c.unicode();
    out[count] = 0;
    return count;
}

bool IsAllSpace(const QString &text) {
    static constexpr InputFilterData blanks{
        2, {{kSpace, kSpace}, {kIdeographicSpace, kIdeographicSpace}}};
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        const unsigned short unit = c.unicode();
        return ISWordSpace(&unit, &blanks);
    });
}

void getStringBySeparator(QStringList *array, const QString &text, char separator) {
    if (!array || text.isNull())
        return;
    // As many bytes as the text has units; no text has fewer bytes than that.
    const QByteArray bytes = text.toUtf8().left(text.size()) + '\n';
    QByteArray field;
    for (char c : bytes) {
        if (c != separator && c != '\n') {
            field += c;
            continue;
        }
        array->append(wholeCharacters(field));
        field.clear();
    }
}

void AddNoRepeatStrToArray(QStringList *array, const QString &text) {
    if (!array || text.isNull())
        return;
    const auto composed = [](const QString &t) {
        return t.normalized(QString::NormalizationForm_C);
    };
    const QString wanted = composed(text);
    if (std::none_of(array->cbegin(), array->cend(),
                     [&](const QString &element) { return composed(element) == wanted; }))
        array->append(text);
}

void ReleaseCFString(QString *text) {
    if (text)
        *text = QString();
}

QString NSStringCreateWithCFString(const QString &text) {
    return cutToBytes(text, kTextBufferBytes - 1);
}

// --- widths in display cells ---

int GetStringLength(const QString &text) {
    int width = 0;
    for (QChar c : text)
        width += unitWidth(c);
    return width;
}

int GetUTF8StringLength(const char *text) {
    int width = 0;
    for (QChar c : strictUtf8(text).value_or(QString()))
        width += c.unicode() < 0x100 ? 1 : 2;
    return width;
}

QString GetShortenString(const QString &text, int limit) {
    int width = 0;
    const auto end = std::find_if(text.cbegin(), text.cend(),
                                  [&](QChar c) { return (width += unitWidth(c)) > limit; });
    return QStringLiteral("") + text.left(end - text.cbegin());
}

// --- comparators ---

int numCompare(const QVariant &left, const QVariant &right) {
    return compare(intValue(left), intValue(right));
}

int pageNumCompare(const QVariantList &left, const QVariantList &right) {
    return numCompare(left.value(0), right.value(0));
}

int pageNumCompareDict(const QVariantMap &left, const QVariantMap &right, const QString &key) {
    return numCompare(left.value(key), right.value(key));
}
