#include "ppd/text_utils.h"
#include "ppd/unit_utils.h"

#include <gtest/gtest.h>

#include <climits>
#include <tuple>

namespace {

template <typename... Columns>
using Rows = std::initializer_list<std::tuple<Columns...>>;

TEST(TextUtils, TenthsAndTheirTexts) {
    const std::tuple<int, int, const char *> texts[] = {
        {0, 16, "0.0"},   {5, 16, "0.5"},      {-5, 16, "-.5"},
        {10, 16, "1.0"},  {-123, 16, "-12.3"}, {INT_MIN, 16, "-214748364.8"},
        {12345, 4, "123"}};
    for (auto [value, size, text] : texts) {
        char out[17] = "################";
        ConvertIntToFloatStr(&value, out, size);
        EXPECT_STREQ(out, text);
        EXPECT_EQ(out[size], size < 16 ? '#' : '\0') << "written behind the buffer";
    }
    const std::tuple<const char *, int> tenths[] = {
        {"12.", 12}, {"12.34", 1234}, {"1.2.3", 123}, {"0.5", 5}, {".5", 5}, {"-.5", -5},
        {"12", 120}, {"007", 70},     {"0-5", -50},   {"5", 50},  {".", 0},  {nullptr, 0}};
    for (auto [text, value] : tenths)
        EXPECT_EQ(ConvertFloatStrToInt(text), value) << (text ? text : "null");
}

TEST(TextUtils, BuffersInPlace) {
    for (auto [value, size, digits] : Rows<int, int, const char *>{
             {0, 12, ""}, {120, 12, "120"}, {-12, 12, "/."}, {1234, 3, "34"}, {7, 1, ""}}) {
        char buffer[12];
        EXPECT_STREQ(itoa(value, buffer, size), digits);
        EXPECT_EQ(buffer[size - 1], '\0');
    }
    const std::tuple<const char *, std::string> fields[] = {{"/1/20/255", "\x01\x14\xFF"},
                                                            {"/256/257/65", {"\0\0A", 3}},
                                                            {"//66", {"\0B", 2}},
                                                            {"12/3", "12/3"}};
    for (const auto &[text, bytes] : fields) {
        char buffer[16];
        strcpy(buffer, text);
        numstrtochar(buffer, sizeof buffer);
        EXPECT_EQ(std::string(buffer, bytes.size() + 1), bytes + '\0') << text;
    }
    for (auto [text, stripped] : Rows<std::string, const char *>{{"000", ""}, {"00120", "120"}}) {
        std::string buffer = text;
        filterHeadZero(buffer.data());
        EXPECT_STREQ(buffer.c_str(), stripped);
    }
}

TEST(TextUtils, WidthsAndQuestions) {
    using Answers = std::tuple<int, int, int, int, bool, bool>;
    for (auto [text, answers] : Rows<QString, Answers>{
             // width, width from UTF-8, points, place of the first, numeric, blank
             {u""_qs, {0, 0, 0, 1, false, true}},
             {u"000"_qs, {3, 3, 0, 4, false, false}},
             {u"1.2.3"_qs, {5, 5, 2, 2, true, false}},
             {u" \u3000"_qs, {3, 3, 0, 3, false, true}},
             {u"A\u00E9\u0100"_qs, {5, 4, 0, 4, false, false}},
             {u"\U0001F5A8."_qs, {5, 5, 1, 3, false, false}}})
        EXPECT_EQ(Answers(GetStringLength(text), GetUTF8StringLength(text.toUtf8()),
                          GetStringPointCount(text), GetStringPointIndex(text),
                          ExistNumericString(text), IsAllSpace(text)),
                  answers)
            << text.toStdString();
    for (const char *invalid : {"a\xFF", "a\xE3\x80", "\xC0\x80"})
        EXPECT_EQ(GetUTF8StringLength(invalid), 0);
    for (auto [limit, start] :
         Rows<int, QString>{{0, ""}, {3, u"\u3042"_qs}, {5, u"\u3042\u3044a"_qs}})
        EXPECT_EQ(GetShortenString(u"\u3042\u3044ab"_qs, limit), start);
    EXPECT_FALSE(GetShortenString(QString(), 5).isNull());
}

TEST(TextUtils, FieldsAndCopies) {
    for (auto [text, fields] : Rows<QString, QStringList>{
             {"a,,b", {"a", "", "b"}},
             {"", {""}},
             {QString(), {}},
             {"a\nb,c", {"a", "b", "c"}},
             {u"\u00E9,b"_qs, {u"\u00E9"_qs, ""}}, // three bytes of four are read
             {u"a\u00E9"_qs, {"a"}}}) {
        QStringList array;
        getStringBySeparator(&array, text, ',');
        EXPECT_EQ(array, fields) << text.toStdString();
    }
    QStringList set{"a"};
    for (const QString &text : {u"a"_qs, u"A"_qs, QString(), u"\u00E9"_qs, u"e\u0301"_qs})
        AddNoRepeatStrToArray(&set, text);
    EXPECT_EQ(set, (QStringList{"a", "A", u"\u00E9"_qs}));
    EXPECT_EQ(NSStringCreateWithCFString(QString(254, u'a') + u'\u00E9'), QString(254, u'a'));
    unsigned short out[3] = {9, 9, 9};
    EXPECT_EQ(RemoveAllSpaces(u" a \u3000"_qs, out), 2);
    EXPECT_EQ(QString::fromUtf16(reinterpret_cast<char16_t *>(out), 3), QString(u"a\u3000\0"_qs));
}

TEST(TextUtils, ComparedByIntegerValue) {
    const std::tuple<QVariant, QVariant, int> rows[] = {{"10", "9", 1},
                                                        {" -3x", -3, 0},
                                                        {2.9, 2, 0},
                                                        {"99999999999", INT_MAX, 0},
                                                        {QVariant(), "+1", -1}};
    for (const auto &[left, right, result] : rows) {
        EXPECT_EQ(numCompare(left, right), result) << left.toString().toStdString();
        EXPECT_EQ(pageNumCompare({left, 7}, {right, 1}), result);
        EXPECT_EQ(pageNumCompareDict({{"k", left}}, {{"k", right}}, "k"), result);
    }
    EXPECT_EQ(pageNumCompare({}, {1}), -1);
}

TEST(InputFilter, RangesByUnitAndByByte) {
    TextEditFilterData filter;
    filter.filterValid = {2, {{'-', '-'}, {'0', '3'}, {'a', 'z'}}};
    filter.filterFirst = {1, {{0x120, 0x17F}}}; // the lowest bytes count: 0x20 to 0x7F
    for (auto [text, valid] : Rows<QString, bool>{
             {"", true}, {"-3", true}, {"33 ", false}, {"a", false}, {u"\u0130"_qs, false}})
        EXPECT_EQ(validateInput(text, &filter), valid) << text.toStdString();
    EXPECT_TRUE(validateDensityInput("a Z", &filter));
    EXPECT_FALSE(validateDensityInput("\xE9", &filter));
    for (int count : {0, INT_MAX}) { // INT_MAX: no further than the record
        filter.filterValid.rangeCount = count;
        EXPECT_FALSE(validateInput("~", &filter));
    }
}

TEST(UnitUtils, PointsMillimetresAndInches) {
    const std::tuple<int, int, int, int, const char *> points[] = {
        {72, 2, 0, 100, "1.00"}, {72, 2, 1, 2540, "25.40"},
        {72, 2, 7, -1, "#"},     {3, 2, 0, 4, ".4"},
        {36, -1, 0, 1, "1"},     {INT_MAX, 9, 0, INT_MAX, "2.147483647"}};
    for (auto [value, decimals, type, result, text] : points) {
        char out[13] = "#";
        EXPECT_EQ(TransformPointByType(out, value, decimals, type), result);
        EXPECT_STREQ(out, text);
    }
    const std::tuple<QString, QString, int> rows[] = {{"25.4", "1.00", 254},
                                                      {"10", "0.39", 100},
                                                      {"12.34", "4.86", 1234},
                                                      {QString(), QString(), 0}};
    for (const auto &[text, inches, tenths] : rows) {
        EXPECT_EQ(TransformMillimetreToInchs(text), inches) << text.toStdString();
        EXPECT_EQ(GetMillimetreFromStr(text), tenths) << text.toStdString();
    }
}

} // namespace
