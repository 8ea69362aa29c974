// A byte that means something to somebody, in each place that a person, a PPD or a program fills:
// what is submitted parses back as it was, or it is refused where the person sees it.

#include "support/filter_options.h"
#include "support/ppd_text.h"
#include "support/ps_job_text.h"

#include "host/cups_server.h"
#include "host/presets/preset.h"
#include "host/presets/preset_files.h"
#include "host/queues/queue_info.h"
#include "host/settings/custom_parameters.h"
#include "host/settings/job_options.h"
#include "host/settings/ppd_texts.h"
#include "platform/ppd_file.h"
#include "platform/ppd_marks.h"
#include "platform/views/text_view.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using Pairs = QList<QPair<QString, QString>>;

/// Whether each pair is refused, or comes back from a filter's options as it was.
/// @param escaped  see filterOptions()
bool arrives(const Pairs &options, const char *escaped = " \t\n\\'\"") {
    Pairs sent{{"first", "1"}};
    for (const auto &pair : options)
        if (host::sendingProblem(pair.first, pair.second).isNull())
            sent.append(pair);
    sent.append(std::pair(QString("last"), QString("2")));
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(filterOptions(sent, escaped).constData(), 0, &parsed);
    bool isSame = count == sent.size();
    for (const auto &[name, value] : std::as_const(sent)) {
        const char *told = cupsGetOption(name.toUtf8().constData(), count, parsed);
        isSame &= told && value == QString::fromUtf8(told);
    }
    cupsFreeOptions(count, parsed);
    return isSame;
}

PpdFile queueWith(const QByteArray &option, const QByteArray &choice, const QByteArray &title,
                  const QByteArray &label, const QByteArray &group) {
    return parsePpdFile(
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
        "*LanguageVersion: English\n*LanguageEncoding: UTF-8\n*PCFileName: \"T.PPD\"\n"
        "*Manufacturer: \"QZ\"\n*Product: \"(T)\"\n*ModelName: \"T\"\n*ShortNickName: \"T\"\n"
        "*NickName: \"T\"\n*PSVersion: \"(3010.000) 0\"\n*OpenGroup: G/" +
        group + "\n*OpenUI *" + option + "/" + title +
        ": PickOne\n*OrderDependency: 10 AnySetup *" + option + "\n*Default" + option +
        ": Plain\n*" + option + " Plain/Plain: \"(plain) pop\"\n*" + option + " " + choice + "/" +
        label + ": \"(other) pop\"\n*CloseUI: *" + option +
        "\n*CustomCode True: \"pop\"\n*ParamCustomCode Code/Code: 1 string 0 40\n"
        "*OpenUI *Code/Code: PickOne\n*DefaultCode: None\n*Code None/None: \"(none) pop\"\n"
        "*CloseUI: *Code\n*CloseGroup: G\n");
}

/// A queue is looked at, all of its choices are marked, sent and written to a file.
void useQueue(const PpdFile &file, const QString &text = {}) {
    if (!file.ppd) {
        EXPECT_FALSE(file.reason.isEmpty());
        return;
    }
    ppd_file_t *ppd = file.ppd.get();
    ppdMarkDefaults(ppd);
    host::eachPpdOption(ppd, [&](const ppd_group_t &group, const ppd_option_t &option) {
        for (int i = 0; i < option.num_choices; ++i) {
            ASSERT_TRUE(markChoice(ppd, option.keyword, option.choices[i].choice));
            EXPECT_TRUE(arrives(host::jobOptionsToSend(ppd, nullptr, {})));
            TextView view;
            for (const QString &shown : {host::optionText(option), host::groupText(group),
                                         host::choiceText(option.choices[i])}) {
                view.setStringValue(shown);
                EXPECT_EQ(view.stringValue(), shown);
            }
        }
    });
    // A document has just the features that were marked, and no line of anybody else.
    const QByteArray job = psJobText(ppd, "%!PS-Adobe-3.0\n%%EndComments\nshowpage\n", text);
    EXPECT_LE(job.count("\n%%BeginFeature:"), 2);
    EXPECT_EQ(job.count("\n%%BeginFeature:"), job.count("\n%%EndFeature"));
    EXPECT_EQ(job.count("\nshowpage"), 1);
}

/// The places. Each gets a text with the byte in its middle.
const struct Place {
    const char *name;
    void (*use)(const QByteArray &text);
} kPlaces[] = {
    {"Option", [](const QByteArray &t) { useQueue(queueWith(t, "X", "T", "L", "G")); }},
    {"Choice", [](const QByteArray &t) { useQueue(queueWith("O", t, "T", "L", "G")); }},
    {"OptionText", [](const QByteArray &t) { useQueue(queueWith("O", "X", t, "L", "G")); }},
    {"ChoiceText", [](const QByteArray &t) { useQueue(queueWith("O", "X", "T", t, "G")); }},
    {"Group", [](const QByteArray &t) { useQueue(queueWith("O", "X", "T", "L", t)); }},
    {"QueueName",
     [](const QByteArray &t) {
         const QString name = QString::fromUtf8(t);
         if (!host::isQueueName(name))
             return;
         char uri[HTTP_MAX_URI], scheme[32], user[32], server[64], path[HTTP_MAX_URI];
         int port = 0;
         httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                          "/printers/%s", t.constData());
         httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme, sizeof scheme, user, sizeof user, server,
                         sizeof server, &port, path, sizeof path);
         EXPECT_EQ(QString::fromUtf8(path), "/printers/" + name);
         const QString line = host::safeLine(name);
         EXPECT_FALSE(line.contains(QRegularExpression("[\\x00-\\x1f\\x7f]")));
     }},
    {"JobTitle",
     [](const QByteArray &t) {
         useQueue(queueWith("O", "X", "T", "L", "G"), QString::fromUtf8(t));
     }},
    {"CustomValue",
     [](const QByteArray &t) {
         const PpdFile file = queueWith("O", "X", "T", "L", "G");
         ASSERT_TRUE(file.ppd);
         ppdMarkDefaults(file.ppd.get());
         auto parameters = host::customParameters(file.ppd.get(), "Code");
         ASSERT_EQ(parameters.size(), 1);
         const QString value = QString::fromUtf8(t);
         if (!host::problemOf(parameters[0], value).isNull())
             return;
         parameters[0].value = value;
         const ppd_option_t *option = host::findOption(file.ppd.get(), "Code");
         ASSERT_TRUE(host::markCustom(file.ppd.get(), *option, parameters));
         EXPECT_EQ(host::customParameters(file.ppd.get(), "Code")[0].value, value);
         EXPECT_TRUE(arrives(host::jobOptionsToSend(file.ppd.get(), nullptr, {})));
         const QByteArray job = psJobText(file.ppd.get(), "%!PS\nshowpage\n", "t");
         // Parentheses within the string are written as numbers.
         const qsizetype at = job.indexOf("*CustomCode");
         const QByteArray code = job.mid(at, job.indexOf("%%EndFeature", at) - at);
         EXPECT_EQ(code.count('('), code.count(')')) << code.constData();
         EXPECT_FALSE(code.mid(code.indexOf('\n') + 1).contains("%%")) << code.constData();
     }},
    {"Setting",
     [](const QByteArray &t) {
         PrintSettings settings;
         const QString text = QString::fromUtf8(t);
         settings.set("com.velmora.key", text, false);
         settings.set(text, "value", false);
         EXPECT_TRUE(arrives(host::jobOptionsToSend(nullptr, &settings, {{"other", text}})));
     }},
    {"PresetName",
     [](const QByteArray &t) {
         const QString name = QString::fromUtf8(t);
         const QString file = host::fileNameFor(name);
         EXPECT_TRUE(QRegularExpression("^[A-Za-z0-9_ %~-]+$").match(file).hasMatch())
             << file.toStdString();
         EXPECT_EQ(host::nameFromFile(file), name);
         if (!host::presetNameProblem(name).isNull())
             return;
         host::Preset preset{name, name, {{name, {name}}}, {}, {{name, name}}, {}};
         preset.settings.insert(name, {name, false});
         QString reason;
         const auto again = host::parsePreset(host::presetText(preset), &reason);
         ASSERT_TRUE(again) << reason.toStdString();
         EXPECT_EQ(again->name, name);
         EXPECT_TRUE(again->setsSameAs(preset));
     }},
};

/// Every control byte, and each that quotes, parts or ends something somewhere.
std::vector<int> bytes() {
    std::vector<int> all;
    for (int byte = 1; byte < 0x20; ++byte)
        all.push_back(byte);
    all.push_back(0x7f);
    for (const char c : std::string("\"\\:</()%';`"))
        all.push_back(c);
    return all;
}

} // namespace

class Injection : public testing::TestWithParam<std::tuple<int, Place>> {};

TEST_P(Injection, ArrivesOrIsRefused) {
    const auto &[byte, place] = GetParam();
    QByteArray text = "a0b";
    text[1] = char(byte);
    place.use(text);
    place.use(text + text + "\nsides=two-sided-long-edge");
}

std::string nameOf(const testing::TestParamInfo<std::tuple<int, Place>> &info) {
    return std::get<1>(info.param).name + std::to_string(std::get<0>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Bytes, Injection,
                         testing::Combine(testing::ValuesIn(bytes()), testing::ValuesIn(kPlaces)),
                         nameOf);

/// What is harmless comes through.
TEST(Harmless, NamesAndValuesSurvive) {
    for (const char *text : {"a.b", "a_b", "a(b)", "custom", "Custom", "1.5", "x-y", "ä"}) {
        const QString value = QString::fromUtf8(text);
        EXPECT_TRUE(host::sendingProblem("Option", value).isNull()) << text;
        EXPECT_TRUE(host::sendingProblem(value, "v").isNull()) << text;
        EXPECT_TRUE(arrives({{"Option", value}, {value, "v"}})) << text;
    }
    const PpdFile file = queueWith("O", "custom", "T", "custom", "G");
    // libcups has its own name for it, on both sides of the server.
    ASSERT_TRUE(file.ppd && markChoice(file.ppd.get(), "O", "_custom"));
    const auto sent = host::jobOptionsToSend(file.ppd.get(), nullptr, {});
    EXPECT_TRUE(sent.contains(QPair<QString, QString>("O", "_custom")));
}

/// The checks above see a broken escaper.
TEST(Harmless, ABrokenEscaperIsSeen) {
    const Pairs quoted{{"key", "'a b\\c"}, {"other", "\"a b"}};
    EXPECT_TRUE(arrives(quoted));
    for (const char *escaped : {" \t\n'\"", "\t\n\\'\"", " \t\n\\\"", " \t\n\\'"})
        EXPECT_FALSE(arrives(quoted, escaped)) << escaped;
}
