#include "ppd/text_utils.h"
#include "ppd/unit_utils.h"

#include <gtest/gtest.h>

#include <climits>

TEST(TextUtils, NumbersAndTheirTexts) {
    // clang-format off
    const std::tuple<int, int, const char *> texts[] = {
        {5, 16, "0.5"},       {0, 16, "0.0"},                {-5, 16, "-.5"},
        {-123, 16, "-12.3"},  {INT_MIN, 16, "-214748364.8"}, {12345, 4, "123"}};
    // clang-format on
    for (auto [value, size, text] : texts) {
        char out[17] = "################";
        ConvertIntToFloatStr(&value, out, size);
        EXPECT_STREQ(out, text);
        EXPECT_EQ(out[size], size < 16 ? '#' : '\0') << "written behind the buffer";
    }
    const std::pair<const char *, int> tenths[] = {
        {"12.", 12}, {"12.34", 1234}, {"1.2.3", 123}, {".5", 5}, {"-.5", -5},
        {"12", 120}, {"007", 70},     {"0-5", -50},   {".", 0},  {nullptr, 0}};
    for (auto [text, value] : tenths)
        EXPECT_EQ(ConvertFloatStrToInt(text), value) << (text ? text : "null");
    EXPECT_EQ(GetMillimetreFromStr("12.34"), 1234);
    EXPECT_EQ(TransformMillimetreToInchs("12.34"), "4.86");
    EXPECT_EQ(TransformMillimetreToInchs("+-5"), "0.00");
    const std::tuple<int, int, int, int, const char *> points[] = {
        {72, 2, 0, 100, "1.00"}, {72, 2, 1, 2540, "25.40"},
        {72, 2, 7, -1, "#"},     {3, 2, 0, 4, ".4"},
        {36, -1, 0, 1, "1"},     {INT_MAX, 9, 0, INT_MAX, "2.147483647"}};
    for (auto [value, decimals, type, result, text] : points) {
        char out[13] = "#";
        EXPECT_EQ(TransformPointByType(out, value, decimals, type), result);
        EXPECT_STREQ(out, text);
    }
    char buffer[16];
    EXPECT_STREQ(itoa(0, buffer, 12), "");
    EXPECT_STREQ(itoa(-12, buffer, 12), "/.");
    EXPECT_STREQ(itoa(1230, buffer, 4), "230");
    EXPECT_EQ(GetIntegerLength(INT_MIN), 11);
    const std::pair<const char *, const char *> zeros[] = {
        {"0070", "70"}, {"00", ""}, {"-0", "-0"}};
    for (auto [text, rest] : zeros) {
        strcpy(buffer, text);
        filterHeadZero(buffer);
        EXPECT_STREQ(buffer, rest);
    }
    const std::pair<const char *, std::string> numbers[] = {
        {"/1/20/255", "\x01\x14\xFF"}, {"/256/257/65", {"\0\0A", 3}}, {"12/3", "12/3"}};
    for (const auto &[text, bytes] : numbers) {
        strcpy(buffer, text);
        numstrtochar(buffer, sizeof buffer);
        EXPECT_EQ(std::string(buffer, bytes.size() + 1), bytes + '\0') << text;
    }
}

TEST(TextUtils, WidthsFieldsCopiesAndOrder) {
    using Answers = std::tuple<int, int, int, int, bool, bool>;
    // width, width from UTF-8, points, place of the first, numeric, blank
    // clang-format off
    const std::pair<QString, Answers> cases[] = {
        {u"000"_qs, {3, 3, 0, 4, false, false}}, {u"A\u00E9\u0100"_qs, {5, 4, 0, 4, false, false}},
        {u"1.2.3"_qs, {5, 5, 2, 2, true, false}}, {u"\U0001F5A8."_qs, {5, 5, 1, 3, false, false}},
        {u" \u3000"_qs, {3, 3, 0, 3, false, true}}};
    // clang-format on
    for (const auto &[text, answers] : cases)
        EXPECT_EQ(Answers(GetStringLength(text), GetUTF8StringLength(text.toUtf8()),
                          GetStringPointCount(text), GetStringPointIndex(text),
                          ExistNumericString(text), IsAllSpace(text)),
                  answers)
            << text.toStdString();
    EXPECT_EQ(GetUTF8StringLength("a\xE3\x80"), 0);
    EXPECT_EQ(GetShortenString(u"\u3042\u3044ab"_qs, 5), u"\u3042\u3044a"_qs);
    const std::pair<QString, QStringList> lists[] = {
        {"a,,b\nc", {"a", "", "b", "c"}}, {"", {""}}, {u"\u00E9,b"_qs, {u"\u00E9"_qs, ""}}};
    for (const auto &[text, fields] : lists) { // of the last one, three bytes of four are read
        QStringList array;
        getStringBySeparator(&array, text, ',');
        EXPECT_EQ(array, fields) << text.toStdString();
    }
    QStringList set{"a"};
    for (const QString &text : {u"a"_qs, u"A"_qs, QString(), u"\u00E9"_qs, u"e\u0301"_qs})
        AddNoRepeatStrToArray(&set, text);
    EXPECT_EQ(set, (QStringList{"a", "A", u"\u00E9"_qs}));
    EXPECT_EQ(NSStringCreateWithCFString(QString(254, u'a') + u'\u00E9'), QString(254, u'a'));
    EXPECT_EQ(NSStringCreateWithCFString(u"\uFEFFa"_qs), u"\uFEFFa"_qs); // a byte order mark stays
    unsigned short out[3] = {9, 9, 9};
    EXPECT_EQ(RemoveAllSpaces(u" a \u3000"_qs, out), 2);
    EXPECT_EQ(QString::fromUtf16(reinterpret_cast<char16_t *>(out), 3), QString(u"a\u3000\0"_qs));
    const std::tuple<QVariant, QVariant, int> rows[] = {
        {"10", "9", 1}, {" -3x", -3, 0}, {2.9, 2, 0}, {"99999999999", INT_MAX, 0}, {0, "+1", -1}};
    for (const auto &[left, right, result] : rows)
        EXPECT_EQ(pageNumCompare({left, 7}, {right, 1}), result) << left.toString().toStdString();
    EXPECT_EQ(pageNumCompareDict({{"a", 1}, {"b", 9}}, {{"a", "2"}}, "a"), -1);
    EXPECT_EQ(pageNumCompareDict({{"a", 1}, {"b", 9}}, {{"a", "2"}}, "b"), 1);
    QString released = "text";
    ReleaseCFString(&released);
    EXPECT_TRUE(released.isNull());
}

TEST(InputFilter, RangesByUnitAndByByte) {
    TextEditFilterData filter;
    filter.filterValid = {2, {{'-', '-'}, {'0', '3'}, {'a', 'z'}}};
    filter.filterFirst = {1, {{0x120, 0x17F}}}; // the lowest bytes count: 0x20 to 0x7F
    EXPECT_TRUE(validateInput("", &filter) && validateInput("-3", &filter));
    EXPECT_FALSE(validateInput("33 ", &filter) || validateInput(u"\u0130"_qs, &filter));
    EXPECT_TRUE(validateDensityInput("a Z", &filter) && !validateDensityInput("\xE9", &filter));
    filter.filterValid.rangeCount = INT_MAX; // no further than the record
    EXPECT_FALSE(validateInput("~", &filter));
}
