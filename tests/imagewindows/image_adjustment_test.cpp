#include "main_panel_fixture.h"

#include "imagewindows/image_adjustment_window.h"
#include "imagewindows/rgb_correction_list.h"
#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/text_view.h"
#include "services/bundle_identity.h"

#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QTemporaryDir>
#include <QTimer>

namespace {

// clang-format off
const struct Row {
    int list, title;
    const char *key;
    QList<QByteArray> choices;
    int other; ///< another item, and its choice
    const char *otherChoice;
} kRows[] = { // in the order in which Cancel puts them back
    {501, 511, kRgb, {"None", "Perceptual", "Vivid"}, 1, "Vivid"},
    {502, 512, "QZRGBInputProfile", {"A", "B"}, 1, "B"},
    {503, 513, "QZRGBGammaCorrection", {"A", "B", "C"}, 2, "C"},
    {504, 514, "QZColorTemperature", {"A", "B"}, 1, "B"},
    {505, 515, kCmyk, {"X", "None", "Y"}, 2, "Y"},
    {506, 516, "QZCMYKCorrectionTarget", {"A", "B"}, 1, "B"},
};
// clang-format on

const char *defaultOf(const Row &row) {
    return row.key == kRgb ? "Perceptual" : row.choices[0].constData();
}

QByteArray allOptions() {
    QByteArray text = ppdOption("QZBlackOverprint", {"False", "True"}) +
                      ppdOption("QZInvalidateColorProfile", {"False", "True"});
    for (const Row &row : kRows)
        text += ppdOption(row.key, row.choices, defaultOf(row));
    return text;
}

class ImageAdjustmentTest : public MainPanelTest {
protected:
    void SetUp() override { pluginBundle = Bundle::open(QStringLiteral(BUNDLE_DIR)); }
    void TearDown() override { pluginBundle.reset(); }

    /// A window with its form, and the two lists of the main panel that it mirrors.
    template <class Window>
    void build(const QByteArray &body, PopupIniData *type = nullptr) {
        auto made = std::make_unique<Window>();
        adjustment = made.get();
        window = std::move(made);
        open(body);
        adjustment->setPluginTypeRecord(type);
        attach();
        panel.rgb = addList<RGBCorrectionListCtrlKRV>(panel, kRgb, rgbColorCorrectonListTag);
        panel.cmyk = addList<GPPDListCtrlKRV>(panel, kCmyk, cmykColorCorrectionListTag);
        start();
    }
    void attach() {
        form = adjustment->loadWindow(pluginBundle.get());
        adjustment->CreatePanel(form, "Image Type Window Title String");
        panel.RunTimeAddNewWindow(adjustment);
    }
    /// Opens the window, acts inside its run and ends it by a button. @return whether the run began
    bool run(const char *button, const std::function<void()> &act) {
        bool began = false;
        QTimer::singleShot(0, qApp, [&] {
            if (!(began = form && ModalWindow::current() == form))
                return;
            act();
            if (form)
                named(button)->click();
        });
        EXPECT_EQ(adjustment->ActivateWindow(), 0);
        QCoreApplication::processEvents();
        return began;
    }
    template <class View = PopupView>
    View *tagged(int tag) {
        return qobject_cast<View *>(adjustment->GetPanelControl(&tag)->GetControlPtr());
    }
    template <class View = ButtonView>
    View *named(const char *name) {
        return form->findChild<View *>(QLatin1String(name));
    }

    ImageAdjustmentWindow *adjustment = nullptr;
    QPointer<ModalWindow> form;
};

TEST_F(ImageAdjustmentTest, FormsHaveEveryControl) {
    const auto check = [this](size_t controls, const char *box = nullptr) {
        EXPECT_EQ(adjustment->getCtrlGroupArrayRef()->size(), controls) << "a view is missing";
        for (const Row &row : kRows) {
            EXPECT_EQ(tagged<TextView>(row.title)->stringValue(), QString(row.key) + " title:");
            EXPECT_EQ(tagged<TextView>(row.title)->buddy(), tagged(row.list));
        }
        EXPECT_TRUE(!box || named<CheckBoxView>(box)->title().endsWith(" title"));
        EXPECT_EQ(form->windowTitle(), "Image Settings");
    };
    build<ImageAdjustmentWndKRV>(allOptions());
    check(17);
    build<ImageAdjustmentInvalidateColorProfileWndKRV>(allOptions());
    check(18, "invalidateColorProfileCheckBoxPtr");
    build<ImageAdjustmentBlackOverWndKRV>(allOptions());
    check(18, "blackOverprintCheckBoxPtr");
    build<ImageAdjustmentWndKRV>("*QZLocalizableFileIndex: \"77\"\n");
    EXPECT_EQ(form->windowTitle(), "no translation") << "the table that the PPD names";
}

TEST_F(ImageAdjustmentTest, CancelPutsMarksBackAndOkMirrors) {
    build<ImageAdjustmentBlackOverWndKRV>(allOptions());
    auto *box = named<CheckBoxView>("blackOverprintCheckBoxPtr");
    for (const bool commits : {false, true}) {
        EXPECT_TRUE(run(commits ? "OKButtonIA" : "cancelButtonIA", [&] {
            EXPECT_EQ(box->intValue(), 0);
            for (const Row &row : kRows) {
                EXPECT_EQ(tagged(row.list)->indexOfSelectedItem(), 0) << row.key;
                EXPECT_TRUE(tagged(row.list)->chooseItem(row.other)) << row.key;
                EXPECT_EQ(host->marked(row.key), row.otherChoice);
            }
            box->click();
            host->calls.clear();
        }));
        Calls back;
        for (const Row &row : kRows) {
            EXPECT_EQ(host->marked(row.key), commits ? row.otherChoice : defaultOf(row));
            back.append(qMakePair(QString(row.key), QString(defaultOf(row))));
        }
        EXPECT_TRUE(commits || host->calls == back);
        EXPECT_EQ(host->marked("QZBlackOverprint"), "True") << "Cancel leaves it";
        EXPECT_EQ(shown(panel.rgb), commits ? 1 : 0);
        EXPECT_EQ(shown(panel.cmyk), commits ? 2 : 0);
    }
    EXPECT_TRUE(run("cancelButtonIA", [&] {
        for (const Row &row : kRows)
            EXPECT_EQ(tagged(row.list)->indexOfSelectedItem(), row.other) << "what OK committed";
        EXPECT_EQ(box->intValue(), 1);
    }));
}

TEST_F(ImageAdjustmentTest, ConflictsComeFromItsOwnTable) {
    const QByteArray constraint = "*UIConstraints: *QZRGBInputProfile B *QZRGBGammaCorrection C\n";
    const QTemporaryDir folder;
    QFile file(folder.filePath("cache.cdf"));
    const QByteArray cache = "*QZXCDFSetting: \"" + QFile::encodeName(file.fileName()) + "\"\n";
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)); // the fourth option's second choice
    file.write("ImageOptionPDETiger\nQZRGBGammaCorrection:B@0@3@1@\n");
    file.close();
    const std::pair<QByteArray, int> cases[] = {{constraint, 2}, {constraint + cache, 1}};
    for (const auto &[lines, forbidden] : cases) {
        build<ImageAdjustmentWndKRV>(allOptions() + lines);
        EXPECT_TRUE(run("cancelButtonIA", [&] {
            EXPECT_TRUE(tagged(503)->isItemEnabled(forbidden));
            tagged(502)->chooseItem(1);
            EXPECT_FALSE(tagged(503)->isItemEnabled(forbidden));
            EXPECT_TRUE(tagged(503)->isItemEnabled(3 - forbidden));
        }));
        EXPECT_TRUE(tagged(503)->isItemEnabled(forbidden));
        host->willChangePPDOptionKeyValue("QZRGBInputProfile", "B"); // by another panel
        EXPECT_TRUE(
            run("OKButtonIA", [&] { EXPECT_FALSE(tagged(503)->isItemEnabled(forbidden)); }));
    }
}

TEST_F(ImageAdjustmentTest, WhatHidesDisablesAndSilences) {
    const char *const menu[] = {"1", "2", "3", "4", "5", nullptr};
    for (uint32_t type = 0; type <= 5; ++type) { // 0: no record
        PopupIniData record{.defaultValue = type, .iniValue = -1, .menuKeys = menu};
        build<ImageAdjustmentWndKRV>(allOptions(), type > 0 ? &record : nullptr);
        EXPECT_EQ(views::isHidden(tagged(506)), type == 4) << type;
        EXPECT_EQ(views::isHidden(tagged<TextView>(516)), type == 4) << type;
    }
    for (const char *key : {kRgb, kCmyk, "QZCMYKCorrectionTarget"}) {
        build<ImageAdjustmentWndKRV>(ppdOption(key, {"A", "B"}));
        EXPECT_EQ(views::isHidden(named<QGroupBox>("CMYKCorrectionGroupBox")), key == kRgb);
    }
    for (const QList<QByteArray> &choices : {QList<QByteArray>{"None", "X"}, {"X", "None"}}) {
        build<ImageAdjustmentWndKRV>(ppdOption(kCmyk, choices, "X") +
                                     ppdOption("QZCMYKCorrectionTarget", {"A"}));
        EXPECT_TRUE(run("cancelButtonIA", [&] {
            for (const char *choice : {"None", "X", "None", "X"}) {
                tagged(505)->chooseItem(int(choices.indexOf(choice)));
                EXPECT_EQ(views::isEnabled(tagged(506)), *choice == 'X');
                EXPECT_EQ(views::isEnabled(tagged<TextView>(516)), *choice == 'X');
            }
        }));
    }
    build<ImageAdjustmentWndKRV>(allOptions());
    const CtrlTag held[] = {&RGBInputProfileIAListTag, nullptr};
    panel.rgb->DisableControlConstrains(held); // as the Advanced button does
    EXPECT_TRUE(run("cancelButtonIA", [&] {
        EXPECT_FALSE(tagged(502)->chooseItem(1));
        EXPECT_TRUE(tagged(503)->chooseItem(1));
    }));
    for (const auto &[color, rows] : {std::pair{true, 3}, {false, 0}}) {
        panel.color = color;
        QVariantMap summary;
        QStringList order;
        EXPECT_EQ(adjustment->GetSummaryText(&summary, &order), 0);
        EXPECT_EQ(order.size(), rows) << order.join(", ").toStdString();
    }
}

TEST_F(ImageAdjustmentTest, InertAndBuiltAgain) {
    ImageAdjustmentWndKRV inert;
    EXPECT_EQ(inert.loadWindow(nullptr), nullptr);
    inert.CreatePanel(nullptr, "Title");
    EXPECT_EQ(inert.InitializeUserPane(nullptr, nullptr), 0);
    EXPECT_EQ(inert.ActivateWindow(), 0);
    inert.RestoreMarkedPPD();
    build<ImageAdjustmentBlackOverWndKRV>(allOptions());
    EXPECT_EQ(adjustment->loadWindow(pluginBundle.get()), form);
    adjustment->terminate();
    EXPECT_FALSE(run("", [] {})) << "nothing could end it";
    delete form; // as a window does that it stood in
    attach();
    start();
    EXPECT_TRUE(run("OKButtonIA", [&] { tagged(502)->chooseItem(1); }));
    EXPECT_EQ(host->marked("QZRGBInputProfile"), "B");
    EXPECT_TRUE(run("", [&] { window.reset(); })) << "ends the run and takes the form along";
    EXPECT_FALSE(form);
}

} // namespace
