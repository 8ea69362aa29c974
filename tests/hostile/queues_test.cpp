// Queues that no maker would ship: the panel opens or stays away, and all else works on.

#include "support/ppd_text.h"
#include "support/ps_job_text.h"
#include "support/run_program.h"

#include "host/bundle_loader.h"
#include "host/conflicts/resolution.h"
#include "host/panel_stage.h"
#include "host/settings/common_settings.h"
#include "host/settings/sent_list.h"
#include "host/settings/typed_options.h"
#include "platform/ppd_file.h"
#include "platform/views/popup_view.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <clocale>

#include <sys/stat.h>

namespace {

QByteArray without(QByteArray text, const char *pattern) {
    const QRegularExpression lines(QString::fromLatin1(pattern),
                                   QRegularExpression::MultilineOption);
    return QString::fromLatin1(text).remove(lines).toLatin1();
}

/// Lines in front of the constraints.
QByteArray with(QByteArray text, const QByteArray &lines) {
    return text.insert(text.indexOf("*UIConstraints:"), lines);
}

QByteArray relabelled(QByteArray text, const QByteArray &label, const QByteArray &encoding) {
    text.replace("*LanguageEncoding: ISOLatin1", "*LanguageEncoding: " + encoding);
    text.replace("*OpenUI *QZColorMode/Color Mode", "*OpenUI *QZColorMode/" + label);
    return text.replace("*QZColorMode Color/Color", "*QZColorMode Color/" + label);
}

QByteArray choices(int count) {
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        lines += "*QZRGBImageType T" + number + "/Type " + number + ": \"\"\n";
    }
    return lines;
}

QByteArray imageTypes(const QByteArray &text, int count) {
    QByteArray bare = without(text, R"(^\*QZRGBImageType .*\n)");
    return bare.insert(bare.indexOf("*CloseUI: *QZRGBImageType"), choices(count));
}

QByteArray option(const QByteArray &name, const QByteArray &rest = {}) {
    return "*OpenUI *" + name + "/" + name + ": PickOne\n*Default" + name + ": None\n*" + name +
           " None/None: \"\"\n*CloseUI: *" + name + "\n" + rest;
}

QByteArray custom(const char *parameters) {
    QByteArray lines = option("Typed", "*CustomTyped True: \"pop\"\n");
    for (const QByteArray &parameter : QByteArray(parameters).split('|'))
        lines += "*ParamCustomTyped " + parameter + '\n';
    return lines;
}

struct Queue {
    const char *name;
    std::function<QByteArray(const QByteArray &sample)> change;
    int imageTypes = -1; ///< items of the panel's list; -1 where that is no matter
};

const Queue kQueues[] = {
    {"NoChoices", [](auto &t) { return imageTypes(t, 0); }},
    {"OneChoice", [](auto &t) { return imageTypes(t, 1); }, 1},
    {"Choices300", [](auto &t) { return imageTypes(t, 300); }, 300},
    {"Choices10000", [](auto &t) { return imageTypes(t, 10000); }, 10000},
    {"OptionInTwoGroups",
     [](auto &t) {
         return with(t, "*OpenGroup: Again/Again\n*OpenUI *QZColorMode/Again: PickOne\n"
                        "*DefaultQZColorMode: Black\n*QZColorMode Sepia/Sepia: \"\"\n"
                        "*CloseUI: *QZColorMode\n*CloseGroup: Again\n");
     }},
    {"OptionsThatDifferInCase", [](auto &t) { return with(t, option("qzcolormode")); }},
    {"ChoicesThatDifferInCase",
     [](auto t) {
         return t.replace("*QZColorMode Black/",
                          "*QZColorMode color/Small: \"\"\n*QZColorMode Black/");
     }},
    {"DuplicateChoice",
     [](auto t) {
         return t.replace("*QZColorMode Black/",
                          "*QZColorMode Color/Twice: \"\"\n*QZColorMode Black/");
     }},
    {"LongColorModes",
     [](auto t) {
         QByteArray more;
         for (int i = 0; i < 40; ++i)
             more += "*QZColorMode M" + QByteArray::number(i) + "/M: \"\"\n";
         return t.replace("*CloseUI: *QZColorMode", more + "*CloseUI: *QZColorMode");
     }},
    {"NoDefaults", [](auto &t) { return without(t, R"(^\*Default[A-Z].*\n)"); }},
    {"DefaultsThatDoNotExist",
     [](auto &t) {
         return QString::fromLatin1(t)
             .replace(QRegularExpression(R"(^(\*DefaultQZ\w+): .*$)",
                                         QRegularExpression::MultilineOption),
                      "\\1: Nothing")
             .toLatin1();
     }},
    {"ConstraintCycle",
     [](auto &t) {
         return with(t, "*UIConstraints: *QZColorMode Color *QZOutputMode Normal\n"
                        "*UIConstraints: *QZOutputMode Normal *QZScreen Auto\n"
                        "*UIConstraints: *QZScreen Auto *QZColorMode Color\n");
     }},
    {"ConstraintOnItself",
     [](auto &t) {
         return with(t, "*UIConstraints: *QZColorMode Color *QZColorMode Color\n"
                        "*UIConstraints: *QZScreen *QZScreen\n");
     }},
    {"EverythingForbidden",
     [](auto &t) {
         return with(t, "*UIConstraints: *PageSize A4 *QZColorMode Color\n"
                        "*UIConstraints: *PageSize A4 *QZColorMode Black\n"
                        "*UIConstraints: *PageSize A4 *QZRGBImageType\n"
                        "*UIConstraints: *PageSize A4 *QZScreen Auto\n");
     }},
    {"LabelAtItsLimit", [](auto &t) { return relabelled(t, QByteArray(79, 'W'), "ISOLatin1"); }},
    {"LabelBeyondItsLimit", [](auto &t) { return relabelled(t, QByteArray(200, 'W'), "UTF-8"); }},
    {"LabelNotInItsEncoding", [](auto &t) { return relabelled(t, "\xff\xfe\x80\xc3", "UTF-8"); }},
    {"LabelCutInsideACharacter",
     [](auto &t) { return relabelled(t, QByteArray(78, 'a') + "\xe2\x82\xac", "UTF-8"); }},
    {"LabelInAnUnknownEncoding", [](auto &t) { return relabelled(t, "\xe4\xf6", "Klingon"); }},
    {"LabelWithMarkup",
     [](auto &t) { return relabelled(t, "<img src=x> &amp; <b>&Bold", "ISOLatin1"); }},
    {"LabelWithDirections",
     [](auto &t) { return relabelled(t, "\xe2\x80\xae gnip \xe2\x81\xa6", "UTF-8"); }},
    {"EmptyLabel", [](auto &t) { return relabelled(t, "", "ISOLatin1"); }},
    {"CustomMinimumAboveMaximum", [](auto &t) { return with(t, custom("A/A: 1 int 9 3")); }},
    {"CustomLimitsThatAreNone",
     [](auto &t) { return with(t, custom("A/A: 1 real nan inf|B/B: 2 points -inf nan")); }},
    {"CustomNumbersOf40Digits",
     [](auto &t) {
         return with(t, custom("A/A: 1 int 1111111111222222222233333333334444444444 2|"
                               "B/B: 2 real 0 9999999999999999999999999999999999999999"));
     }},
    {"CustomDecimalComma", [](auto &t) { return with(t, custom("A/A: 1 real 0,5 9,75")); }},
    {"CustomOfTwoTypes",
     [](auto &t) {
         return with(t, custom("A/A: 1 string 1 10|A/A: 1 int 0 5|A/A: 2 passcode 1 4"));
     }},
    {"CustomNegativeLength", [](auto &t) { return with(t, custom("A/A: 1 string -5 -1")); }},
    {"CustomWithoutParameters", [](auto &t) { return with(t, custom("B/B: 1 nothing 0 0")); }},
    {"CustomPageWithoutParameters",
     [](auto &t) { return with(t, "*VariablePaperSize: True\n*CustomPageSize True: \"pop\"\n"); }},
    {"NoPageSize",
     [](auto &t) {
         return without(t, R"(^\*(OpenUI \*|CloseUI: \*|Default|OrderDependency: \S+ \S+ \*)?)"
                           R"((PageSize|PageRegion|PaperDimension|ImageableArea)\b.*\n)");
     }},
    {"NegativePages",
     [](auto t) {
         return t.replace("*PaperDimension A4/A4: \"595 842\"",
                          "*PaperDimension A4/A4: \"-595 1e40\"");
     }},
    {"NoLayout", [](auto t) { return t.replace("\"Default00-MVO530\"", "\"../../etc-passwd\""); }},
    {"SettingWithFormats",
     [](auto t) { return t.replace("\"Default00-MVO530\"", "\"%s%n%s%1-%s%n\""); }},
    {"StringsTableWithAPath",
     [](auto &t) { return with(t, "*QZLocalizableFileIndex: \"/../../../x\"\n"); }},
};

/// The whole road, with everything that a dialog shows beside the panel.
void walk(host::PpdSource source, int imageTypes) {
    ppd_file_t *ppd = source.ppd.get();
    ppdMarkDefaults(ppd);
    host::PanelStage stage(std::move(source), *host::loadBundle(BUNDLE_DIR));
    const host::ConflictIndex conflicts(ppd);
    host::JobSettings job(ppd);
    host::CommonSettings common;
    host::TypedOptions typed(common.form());
    const auto reason = [&](const QString &option, const QString &choice) {
        return conflicts.reasonAgainst(option, choice);
    };
    common.setSettings(&job, reason);
    typed.setOptions(ppd, {}, reason);
    if (stage.open()) {
        if (const auto *menu = stage.window()->findChild<PopupView *>("ImageTypeList");
            menu && imageTypes >= 0) {
            EXPECT_EQ(menu->numberOfItems(), imageTypes);
            EXPECT_TRUE(menu->isEnabled());
        }
        for (auto *menu : stage.window()->findChildren<PopupView *>())
            for (int item = 0; item < qMin(menu->numberOfItems(), 20); ++item)
                menu->chooseItem(item);
        stage.session().noteUserAct();
        stage.session().save();
        stage.session().summary();
    }
    stage.session().print();
    host::proposal(conflicts);
    const auto rows = host::sentList({ppd, &stage.callback().settings(), &job});
    for (const host::SentRow &row : rows)
        EXPECT_FALSE(row.sentText().isEmpty());
    const QByteArray document = psJobText(ppd, "%!PS-Adobe-3.0\n%%EndComments\nshowpage\n", "t");
    EXPECT_TRUE(document.startsWith("%!PS-Adobe-3.0"));
}

} // namespace

class HostileQueue : public testing::TestWithParam<Queue> {};

TEST_P(HostileQueue, IsSurvived) {
    const QByteArray text = GetParam().change(readFile(samplePath("velmora-mvo-530.ppd")));
    for (const char *locale : {"C.UTF-8", "de_DE.UTF-8"}) {
        std::setlocale(LC_ALL, locale); // a decimal comma, where the machine has it
        PpdFile file = parsePpdFile(text);
        if (file.ppd)
            walk({std::move(file.ppd), Printer{"Hostile"}}, GetParam().imageTypes);
        else
            EXPECT_FALSE(file.reason.isEmpty());
    }
    std::setlocale(LC_ALL, "C.UTF-8");
}

INSTANTIATE_TEST_SUITE_P(Queues, HostileQueue, testing::ValuesIn(kQueues),
                         [](const auto &info) { return info.param.name; });

// ---- Files ------------------------------------------------------------------------------------

/// What can stand where a file is expected.
struct Thing {
    const char *name;
    std::function<void(const QString &path)> make;
};

const Thing kThings[] = {
    {"Nothing", [](auto &) {}},
    {"Directory", [](auto &path) { QDir().mkpath(path); }},
    {"Fifo", [](auto &path) { ::mkfifo(path.toLocal8Bit().constData(), 0600); }},
    {"Device", [](auto &path) { QFile::link("/dev/zero", path); }},
    {"LinkToNothing", [](auto &path) { QFile::link("/nowhere/at/all", path); }},
    {"LinkToItself", [](auto &path) { QFile::link(path, path); }},
    {"Empty", [](auto &path) { QFile(path).open(QIODevice::WriteOnly); }},
    {"EndlessLine",
     [](auto &path) {
         QFile file(path);
         ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(qint64(1) << 30)); // with holes
     }},
    {"CompressedWithoutEnd",
     [](auto &path) {
         runProgram("sh", {"-c", "head -c 300M /dev/zero | gzip -1 > \"$0\"", path}, "/");
     }},
    {"OtherText",
     [](auto &path) {
         QFile file(path);
         ASSERT_TRUE(file.open(QIODevice::WriteOnly));
         file.write("ImageOptionPDETiger\nQZColorMode:Black@9@99@-7@x@@@@\n%!PS\n");
     }},
};

class HostileFile : public testing::TestWithParam<Thing> {
protected:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("thing");
};

/// As a PPD it is refused with a reason, and nobody waits for it.
TEST_P(HostileFile, IsNoPpd) {
    GetParam().make(m_path);
    const PpdFile file = readPpdFile(m_path);
    EXPECT_FALSE(file.ppd);
    EXPECT_FALSE(file.reason.isEmpty());
}

/// As a constraint cache it leaves a panel that works, with fewer conflicts.
TEST_P(HostileFile, IsNoCache) {
    GetParam().make(m_path);
    QByteArray text = readFile(samplePath("velmora-mvo-530.ppd"));
    text.replace("*FormatVersion:", "*QZXCDFSetting: \"" + m_path.toUtf8() + "\"\n*FormatVersion:");
    PpdFile file = parsePpdFile(text);
    ASSERT_TRUE(file.ppd);
    walk({std::move(file.ppd), Printer{"Hostile"}}, 13);
}

INSTANTIATE_TEST_SUITE_P(Files, HostileFile, testing::ValuesIn(kThings),
                         [](const auto &info) { return info.param.name; });
