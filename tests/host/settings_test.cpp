#include "settings_ppd.h"

#include "host/settings/common_settings.h"
#include "host/settings/custom_values.h"
#include "host/settings/job_options.h"
#include "host/settings/number_field.h"
#include "host/settings/page_ranges.h"
#include "host/settings/ppd_texts.h"
#include "host/settings/secrets.h"
#include "host/settings/typed_options.h"
#include "platform/ppd_file.h"
#include "platform/ppd_marks.h"
#include "support/ppd_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTimer>

#include <gtest/gtest.h>

using host::JobSettings;
using host::OptionList;
using host::Setting;

namespace {

PpdPtr settings() {
    PpdFile file = parsePpdFile(settingsPpd());
    EXPECT_TRUE(file.ppd) << file.reason.toStdString();
    ppdMarkDefaults(file.ppd.get());
    return std::move(file.ppd);
}

std::string text(const OptionList &options) {
    QStringList rows;
    for (const auto &[name, value] : options)
        rows.append(name + '=' + value);
    return rows.join(' ').toStdString();
}

std::string marked(const PpdPtr &ppd, const char *option) {
    const auto sent = host::jobOptionsToSend(ppd.get(), nullptr, {});
    return host::optionValue(sent, option).value_or("").toStdString();
}

} // namespace

TEST(PageRanges, AreReadAndFaultsHaveTheirPlace) {
    const struct {
        const char *typed;
        const char *value;
        const char *words; ///< part of the problem
        int at;
    } cases[] = {
        {"1-3,5,9-", "1-3,5,9-", "", 0},
        {" 5 ; 1 - 3 ", "1-3,5", "", 0},
        {"-4,3-6,7", "1-7", "", 0},
        {"\u0663\u2013\u0665", "3-5", "", 0},
        {"2147483646", "2147483646", "", 0},
        {"", "", "Type the pages", 0},
        {"1,,2", "", "before a comma", 2},
        {"1,", "", "at the end", 2},
        {"9-3", "", "ends before", 0},
        {"1,0", "", "count from 1", 2},
        {"1,x", "", "“x” isn't a page", 2},
        {"1 2", "", "“2” can't stand", 2},
        {"-", "", "at the end", 1},
        {"1-2-3", "", "“-” can't stand", 3},
        {"99999999999999999999", "", "too great", 0},
    };
    for (const auto &c : cases) {
        const host::PageRanges found = host::readPageRanges(c.typed);
        EXPECT_EQ(found.value.toStdString(), c.value) << c.typed;
        EXPECT_EQ(found.problem.isNull(), !*c.words) << c.typed;
        EXPECT_TRUE(found.problem.contains(c.words)) << c.typed << found.problem.toStdString();
        EXPECT_EQ(found.at, c.at) << c.typed;
    }
    EXPECT_TRUE(host::readPageRanges("3-13", 12).problem.contains("only 12 pages"));
    EXPECT_TRUE(host::readPageRanges(QString("1,").repeated(200) + "1").value.isNull());
}

TEST(JobSettings, TellCupsOnlyWhatDiffers) {
    const struct {
        OptionList server, user;
        QList<QPair<Setting, QString>> chosen;
        const char *sent;
    } cases[] = {
        {{}, {}, {}, ""},
        {{}, {}, {{Setting::Copies, "3"}, {Setting::NumberUp, "4"}}, "copies=3 number-up=4"},
        {{}, {}, {{Setting::Copies, "10000"}, {Setting::NumberUp, "3"}, {Setting::Pages, "x"}}, ""},
        {{{"number-up-default", "2"}}, {}, {}, "number-up=2"},
        {{{"number-up", "2"}}, {}, {{Setting::NumberUp, "1"}}, "number-up=1"},
        {{}, {{"copies", "2"}}, {{Setting::Copies, "1"}}, "copies=1"},
        {{{"copies", "2"}}, {{"copies", "5"}}, {}, "copies=5"},
        {{{"copies", "many"}, {"orientation-requested-default", "no-value"}}, {}, {}, ""},
        {{{"orientation-requested", "4"}},
         {},
         {{Setting::Orientation, ""}},
         "orientation-requested=4"},
        {{{"page-ranges", "2-3"}}, {}, {{Setting::Pages, ""}}, "page-ranges=1-"},
    };
    for (const auto &c : cases) {
        JobSettings job(nullptr, c.server, c.user);
        for (const auto &[setting, value] : c.chosen)
            job.setValue(setting, value);
        EXPECT_EQ(text(job.jobOptions()), c.sent);
        job.setToFile(true);
        EXPECT_EQ(text(job.jobOptions()), "");
        EXPECT_FALSE(job.whyNot(Setting::Copies).isNull());
    }
}

TEST(JobSettings, HaveOneHomeWhateverFormComes) {
    const PpdPtr ppd = settings();
    JobSettings job(ppd.get());
    QStringList problems;
    const OptionList others =
        job.takeOptions({{"sides", "two-sided-long-edge"},
                         {"media", "Letter"},
                         {"multiple-document-handling", "separate-documents-collated-copies"},
                         {"landscape", "true"},
                         {"copies", "0"},
                         {"job-hold-until", "night"}},
                        &problems);
    EXPECT_EQ(text(others), "job-hold-until=night");
    EXPECT_EQ(problems.size(), 1);
    EXPECT_EQ(marked(ppd, "EFDuplex"), "DuplexNoTumble");
    EXPECT_EQ(marked(ppd, "PageSize"), "Letter");
    EXPECT_TRUE(job.isCollated());
    EXPECT_EQ(text(job.jobOptions()), "orientation-requested=4");
    for (const char *media : {"iso_a4_210x297mm", "na_letter_8.5x11in", "iso-a4", "A4,Nowhere"}) {
        problems.clear();
        job.takeOptions({{"media", media}}, &problems);
        EXPECT_EQ(problems.size(), QByteArray(media).endsWith("Nowhere")) << media;
        EXPECT_EQ(marked(ppd, "PageSize"), media[0] == 'n' ? "Letter" : "A4") << media;
    }
    // a preset of the command line goes by no settings
    const OptionList sent = host::jobOptionsToSend(ppd.get(), nullptr,
                                                   {{"Sides", "one-sided"},
                                                    {"media", "A4"},
                                                    {"multiple-document-handling", "x"},
                                                    {"a", "1"},
                                                    {"A", "2"}});
    for (const char *twin : {"sides", "media", "multiple-document-handling", "PageRegion"})
        EXPECT_FALSE(host::optionValue(sent, twin)) << twin;
    EXPECT_EQ(sent.last(), qMakePair(QString("A"), QString("2")));

    markChoice(ppd.get(), "PageRegion", "A4");
    EXPECT_EQ(job.value(Setting::PaperSize), "A4");
    EXPECT_EQ(job.choices(Setting::PaperSize).first().text, "A4");
    EXPECT_EQ(host::optionText(*job.ppdOption(Setting::PaperSize)), "Gr\u00f6\u00dfe & Form");
}

TEST(CommonSettings, MarksWhatAPersonChoosesAndGreysTheRest) {
    const PpdPtr ppd = settings();
    JobSettings job(ppd.get());
    host::CommonSettings widget;
    widget.setSettings(&job, [](const QString &option, const QString &choice) {
        return option == "PageSize" && choice == "Letter" ? "Letter <b> can't" : QString();
    });
    QStringList told;
    QObject::connect(&widget, &host::CommonSettings::changed,
                     [&](const QString &option) { told.append(option); });
    const auto pick = [&](const char *name, const char *keyword) {
        auto *box = widget.findChild<QComboBox *>(name);
        box->setCurrentIndex(box->findData(keyword));
        emit box->activated(box->currentIndex());
    };
    auto *sizes = widget.findChild<QComboBox *>("paperSize");
    const auto *letter = qobject_cast<QStandardItemModel *>(sizes->model())->item(1);
    EXPECT_FALSE(letter->isEnabled());
    EXPECT_EQ(letter->data(Qt::AccessibleDescriptionRole), "Letter <b> can't");
    EXPECT_EQ(letter->toolTip(), "<span>Letter &lt;b&gt; can't</span>");
    for (const char *missing : {"paperSource", "paperType", "collate"}) {
        auto *control = widget.findChild<QWidget *>(missing);
        EXPECT_FALSE(control->isEnabled()) << missing;
        EXPECT_FALSE(control->toolTip().isEmpty()) << missing;
        EXPECT_TRUE(control->toolTip().contains(control->accessibleDescription())) << missing;
    }

    pick("sides", "DuplexNoTumble");
    EXPECT_EQ(marked(ppd, "EFDuplex"), "DuplexNoTumble");
    widget.findChild<QSpinBox *>("copies")->setValue(2);
    widget.findChild<QCheckBox *>("collate")->click();
    EXPECT_EQ(marked(ppd, "Collate"), "True");
    pick("numberUp", "4");
    auto *pages = widget.findChild<QLineEdit *>("pages");
    pages->setText("9-3");
    emit pages->textEdited("9-3");
    EXPECT_TRUE(widget.problem().contains("ends before")) << widget.problem().toStdString();
    EXPECT_EQ(pages->accessibleDescription(), widget.problem());
    pages->setText("3-9");
    emit pages->textEdited("3-9");
    EXPECT_EQ(widget.problem(), QString());
    EXPECT_EQ(told.join(' '), "EFDuplex copies Collate number-up page-ranges page-ranges");
    EXPECT_EQ(text(job.jobOptions()), "copies=2 page-ranges=3-9 number-up=4");
    widget.setPageCount(5);
    EXPECT_TRUE(widget.problem().contains("the last one is 2")); // sides of four pages
    widget.findChild<QRadioButton *>("allPages")->click();
    EXPECT_EQ(widget.problem(), QString());
    job.setValue(host::Setting::Pages, "1-7"); // by a preset that was made for another document
    widget.setSettings(&job);
    EXPECT_TRUE(widget.problem().contains("the last one is 2"));
    pick("numberUp", "1");
    EXPECT_TRUE(widget.problem().contains("only 5 pages"));
    EXPECT_EQ(job.value(host::Setting::Pages), "1-7");
    pages->setText("1,x");
    emit pages->textEdited("1,x");
    EXPECT_EQ(job.value(host::Setting::Pages), QString());
    widget.setSettings(nullptr); // to another printer and back
    widget.setSettings(&job);
    EXPECT_EQ(pages->text(), "1,x");
    EXPECT_FALSE(widget.problem().isNull());
    widget.findChild<QRadioButton *>("allPages")->click();

    markChoice(ppd.get(), "EFDuplex", "None"); // by another panel
    widget.refresh();
    EXPECT_EQ(widget.findChild<QComboBox *>("sides")->currentData(), "None");

    pick("paperSize", "Custom"); // begins at the size before
    EXPECT_EQ(marked(ppd, "PageSize"), "Custom.595x842");
    auto *width = widget.findChild<host::LengthField *>("custom.PageSize.Width");
    for (const auto unit : {host::LengthUnit::Inch, host::LengthUnit::Point,
                            host::LengthUnit::Millimetre}) // changes nothing
        width->setUnit(unit);
    EXPECT_EQ(marked(ppd, "PageSize"), "Custom.595x842");
    width->number()->setValue(100);
    EXPECT_EQ(marked(ppd, "PageSize").substr(0, 14), "Custom.283.464");
    for (const char *typed : {"5", "50."}) { // the first on the way to more
        width->number()->findChild<QLineEdit *>()->setText(typed);
        EXPECT_EQ(widget.problem().contains("Width"), QByteArray(typed) == "5") << typed;
        widget.refresh();
        EXPECT_EQ(width->number()->text(), typed) << "what is being typed stays";
    }
    widget.findChild<QSpinBox *>("copies")->findChild<QLineEdit *>()->clear();
    EXPECT_TRUE(widget.problem().contains("9999"));
    widget.findChild<QSpinBox *>("copies")->setValue(3);
    pick("paperSize", "A4");
    EXPECT_EQ(marked(ppd, "PageSize"), "A4");
}

TEST(CustomValues, AreTypedWithinTheirRangesAndMarkedAsTyped) {
    QLocale::setDefault(QLocale(QLocale::German));
    const PpdPtr ppd = settings();
    host::CustomValues values;
    values.setOption(ppd.get(), "Mark");
    EXPECT_TRUE(values.isHidden());
    markChoice(ppd.get(), "Mark", "Custom");
    values.refresh();
    EXPECT_FALSE(values.isHidden());
    const auto field = [&](const char *name) {
        return values.findChild<QWidget *>(QString("custom.Mark.") + name);
    };
    auto *edit = qobject_cast<QLineEdit *>(field("Text"));
    auto *word = qobject_cast<QLineEdit *>(field("Word"));
    auto *count = qobject_cast<QSpinBox *>(field("Count"));
    auto *curve = qobject_cast<host::NumberField *>(field("Curve"));
    EXPECT_TRUE(values.problem().contains("missing"));
    EXPECT_EQ(word->echoMode(), QLineEdit::Password);
    EXPECT_EQ(count->minimum(), 3);
    EXPECT_EQ(count->maximum(), 9);
    const struct {
        QString typed;
        const char *words;
    } bad[] = {{"a{b", "braces"}, {"", "missing"}, {QString(20, u'\u00e4'), "too long"}};
    for (const auto &c : bad) {
        edit->setText(c.typed);
        EXPECT_TRUE(values.problem().contains(c.words)) << values.problem().toStdString();
    }
    edit->setText("it's \"1\", 2");
    for (const char *typed : {"1,25", "1.25"}) {
        QString shown = typed;
        int at = 0;
        EXPECT_EQ(curve->validate(shown, at), QValidator::Acceptable) << typed;
        EXPECT_EQ(curve->valueFromText(shown), 1.25) << typed;
    }
    curve->setValue(curve->minimum()); // 0.1, which single precision has not
    EXPECT_EQ(values.choiceText().contains("Curve=0.1 "), true);
    curve->setValue(1.25);
    word->setText("open");
    EXPECT_EQ(values.problem(), QString());
    EXPECT_EQ(marked(ppd, "Mark"),
              R"({Text='it\'s "1", 2' Count=3 Place=10 Curve=1.25 Word='open'})");
    EXPECT_EQ(host::redactedChoice(*host::findOption(ppd.get(), "Mark"),
                                   host::customParameters(ppd.get(), "Mark"))
                  .contains("open"),
              false);
    QLocale::setDefault(QLocale::c());
}

TEST(TypedOptions, OffersWhatNothingElseShows) {
    const PpdPtr ppd = settings();
    QWidget window;
    auto *form = new QFormLayout(&window);
    form->addRow("Before", new QLineEdit);
    host::TypedOptions typed(form);
    QStringList changes;
    QObject::connect(&typed, &host::TypedOptions::changed,
                     [&](const QString &option) { changes.append(option); });
    typed.setOptions(
        ppd.get(), {"pagesize", "Mark"}, [](const QString &option, const QString &choice) {
            return option == "Ink" && choice == "Custom" ? QString("No ink") : QString();
        });
    QStringList menus;
    for (const auto *menu : window.findChildren<QComboBox *>())
        if (menu->objectName().startsWith("option."))
            menus.append(menu->objectName());
    EXPECT_EQ(menus.join(' ').toStdString(), "option.Ink option.Pin");
    const auto *ink = window.findChild<QComboBox *>("option.Ink");
    EXPECT_FALSE(ink->model()->flags(ink->model()->index(1, 0)) & Qt::ItemIsEnabled);
    auto *pin = window.findChild<QComboBox *>("option.Pin");
    pin->setCurrentIndex(1);
    emit pin->activated(1);
    EXPECT_EQ(marked(ppd, "Pin"), "Custom.");
    EXPECT_TRUE(typed.problem().isNull()) << "an empty PIN is asked for later";
    auto *code = window.findChild<QLineEdit *>("custom.Pin.Code");
    code->setText("12");
    emit code->textEdited("12");
    EXPECT_FALSE(typed.problem().isNull());
    EXPECT_TRUE(changes.contains("Pin"));
    typed.setOptions(nullptr);
    EXPECT_EQ(form->rowCount(), 1);
}

TEST(CustomValues, AbsurdParametersAreMadeSafe) {
    QByteArray body = "*OpenUI *Many/Many: PickOne\n*DefaultMany: None\n*Many None/None: \"\"\n"
                      "*CloseUI: *Many\n*CustomMany True: \"\"\n";
    for (int i = 1; i <= 500; ++i)
        body += "*ParamCustomMany P" + QByteArray::number(i) + "/P: " + QByteArray::number(i) +
                (i % 2 ? " real nan -inf\n" : " string 90 -5\n");
    body += "*OpenUI *Wide/Wide: PickOne\n*DefaultWide: None\n*Wide None/None: \"\"\n"
            "*CloseUI: *Wide\n*CustomWide True: \"\"\n"
            "*ParamCustomWide A/A: 1 real -1e99 1e99\n";
    const PpdPtr ppd = openPpdText(body);
    markChoice(ppd.get(), "Many", "Custom");
    host::CustomValues values;
    values.setOption(ppd.get(), "Many");
    EXPECT_EQ(values.findChildren<QLineEdit *>(QRegularExpression("^custom")).size(),
              host::CustomValues::kMostFields / 2);
    for (const char *option : {"Many", "Wide"})
        for (const auto &parameter : host::customParameters(ppd.get(), option)) {
            EXPECT_TRUE(std::isfinite(parameter.least) && std::isfinite(parameter.greatest));
            EXPECT_LE(parameter.least, parameter.greatest) << parameter.name.constData();
            EXPECT_TRUE(parameter.isText() || host::problemOf(parameter, parameter.value).isNull());
        }
}

TEST(Secrets, AreAskedMaskedAndForgotten) {
    const PpdPtr ppd = settings();
    EXPECT_TRUE(host::askSecrets(nullptr, ppd.get())) << "nothing to ask";
    markChoice(ppd.get(), "Pin", "Custom");
    ASSERT_EQ(host::secretsOf(ppd.get()).size(), 1);
    for (const bool accept : {false, true}) {
        bool worked = false;
        QTimer::singleShot(0, [&] {
            QWidget *dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            worked = true;
            auto *edit = dialog->findChild<QLineEdit *>("Pin.Code");
            EXPECT_EQ(edit->echoMode(), QLineEdit::Password);
            QPushButton *print = nullptr;
            for (auto *button : dialog->findChildren<QPushButton *>())
                print = button->text() == "&Print" ? button : print;
            for (const char *typed : {"123", "12345"}) {
                edit->setText(typed);
                EXPECT_EQ(print->isEnabled(), QByteArray(typed).size() >= 4);
            }
            accept ? print->click() : qobject_cast<QDialog *>(dialog)->reject();
        });
        EXPECT_EQ(host::askSecrets(nullptr, ppd.get()), accept);
        EXPECT_TRUE(worked);
        EXPECT_EQ(marked(ppd, "Pin"), accept ? "Custom.12345" : "Custom.");
    }
    EXPECT_TRUE(host::secretsOf(ppd.get()).first().isUsable);
    host::forgetSecrets(ppd.get());
    EXPECT_EQ(marked(ppd, "Pin"), "Custom.");
}
