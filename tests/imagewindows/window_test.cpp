#include "main_panel_fixture.h"

#include "imagewindows/rgb_correction_list.h"
#include "imagewindows/window_buttons.h"
#include "platform/views/button_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/text_field_view.h"

#include <QTest>
#include <QTimer>

namespace {

constexpr int kListTag = 7;
constexpr const char *kRgb = "QZRGBCorrection", *kCmyk = "QZCMYKCorrectionSTD";

/// A text whose value "bad" isn't valid.
class Field : public BaseControlKRVImageOptions {
public:
    explicit Field(TextFieldView *view) : m_view(view) {
        CreateControl(view);
        allocateBlocks(CtrlDataBlk::kTextSize);
    }
    CtrlDataBlk *GetValueFromUI() override {
        ctrlUIDataBlkPtr->clear();
        const QByteArray text = m_view->stringValue().toUtf8();
        ctrlUIDataBlkPtr->copyFrom(text.constData(), static_cast<uint32_t>(text.size()));
        return ctrlUIDataBlkPtr.get();
    }
    bool SetControlValueToUI() override {
        m_view->setStringValue(ctrlDataBlkPtr->text());
        return true;
    }
    bool InvalidateData() override { return m_view->stringValue() != "bad"; }

private:
    TextFieldView *m_view;
};

class RestoringWindow : public PopupWinInPanelKRVImageOptions {
public:
    void RestoreMarkedPPD() override { list->RestorePPD(GetCurrentPPD()); }
    PPDPopupControlKRVImageOptions *list = nullptr;
};

class WindowTest : public MainPanelTest {
protected:
    void SetUp() override { windowView = modal; }
    void TearDown() override {
        view.setParent(nullptr);
        delete modal;
    }
    template <class Button>
    ButtonView *addButton(BasePrintPanelKRVImageOptions &owner) {
        auto button = std::make_unique<Button>();
        auto *made = new ButtonView(place(owner));
        button->CreateControl(made, "Title");
        add(owner, std::move(button), 0);
        return made;
    }
    /// A window with a list, a text and its buttons, opened by the main panel's button.
    template <class Ok, class Cancel>
    void build(const QByteArray &body = "") {
        open(ppdOption("QZList", {"A", "B", "C"}) + body);
        list = addList<GPPDListCtrlKRV>(*window, "QZList", kListTag);
        text = new TextFieldView(modal);
        field = add(*window, std::make_unique<Field>(text), 0);
        ok = addButton<Ok>(*window);
        cancel = addButton<Cancel>(*window);
        defaults = addButton<GRestoreDefaultButtonKRV>(*window);
        panel.balance = window.get();
        opener = addButton<GColorBalanceButtonKRV>(panel);
        start();
        dialog.show();
        view.setParent(&dialog); // into the host's window, after the controls were made
        view.show();
    }
    void type(const QString &entry) {
        text->setFocus();
        text->selectAll();
        QTest::keyClicks(text, entry);
        EXPECT_TRUE(text->hasPendingEdit());
    }
    /// Opens the window and acts inside its run. @return whether the run began
    bool run(const std::function<void()> &act) {
        bool began = false;
        QTimer::singleShot(0, qApp, [&] {
            began = ModalWindow::current() == modal;
            act();
            EXPECT_FALSE(modal->isVisible()) << "nothing ended the run";
            modal->closeWindow();
        });
        opener->click();
        EXPECT_EQ(ModalWindow::current(), nullptr);
        QCoreApplication::processEvents();
        return began;
    }

    QWidget dialog;
    QPointer<ModalWindow> modal = new ModalWindow;
    PPDPopupControlKRVImageOptions *list = nullptr;
    Field *field = nullptr;
    TextFieldView *text = nullptr;
    ButtonView *ok = nullptr, *cancel = nullptr, *defaults = nullptr, *opener = nullptr;
};

TEST_F(WindowTest, OkCommitsAndEveryOtherEndDoesNot) {
    build<GOKButtonKRV, GCancelButtonKRV>();
    const struct {
        const char *name;
        std::function<void()> end;
        bool commits;
    } cases[] = {
        {"Cancel", [this] { cancel->click(); }, false},
        {"Escape", [this] { QTest::keyClick(modal, Qt::Key_Escape); }, false},
        {"title bar", [this] { modal->close(); }, false},
        {"OK", [this] { ok->click(); }, true},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        list->Disable(); // which opening gives up
        EXPECT_TRUE(run([&] {
            EXPECT_EQ(modal->parentWidget(), &dialog) << "the window of this moment";
            EXPECT_EQ(shown(list), 0) << "what was committed";
            EXPECT_EQ(text->stringValue(), "");
            EXPECT_FALSE(views::isUsable(opener));
            menu(list)->chooseItem(1);
            type("new");
            row.end();
        }));
        EXPECT_EQ(list->GetValueFromControl()->word(), row.commits ? 2 : 1);
        EXPECT_STREQ(field->GetControlBlkPtr()->text(), row.commits ? "new" : "");
        EXPECT_FALSE(text->hasPendingEdit());
    }
    panel.SetDefaultValueToUI();
    EXPECT_EQ(shown(list), 1) << "not from the main panel";
    EXPECT_TRUE(run([&] {
        defaults->click();
        EXPECT_EQ(shown(list), 0);
        EXPECT_EQ(host->marked("QZList"), "A");
        type("bad");
        views::setHidden(text, true); // the focus goes, the edit stays
        ok->click();
        EXPECT_TRUE(modal->isVisible());
        EXPECT_EQ(list->GetValueFromControl()->word(), 2) << "nothing has moved";
        cancel->click();
    }));
}

TEST_F(WindowTest, RunsNestAndSurviveTheirOwner) {
    build<GOKButtonKRV, GCancelButtonKRV>();
    ModalWindow inner;
    PopupWinInPanelKRVImageOptions innerWindow;
    innerWindow.PopupWinInPanel(&inner, QString());
    window->RunTimeAddNewWindow(&innerWindow);
    EXPECT_TRUE(run([&] {
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_EQ(inner.parentWidget(), modal) << "over the window that opened it";
            EXPECT_FALSE(views::isUsable(ok));
            innerWindow.DeactivateWindow();
        });
        EXPECT_EQ(innerWindow.ActivateWindow(), 0);
        EXPECT_TRUE(modal->isVisible());
        ok->click();
    }));
    EXPECT_TRUE(run([&] {
        window.reset();    // ends the run first
        panel.terminate(); // takes the button along that opened the window
        delete opener;
    }));
}

TEST_F(WindowTest, WithoutWindowOrPanelNothingHappens) {
    PopupWinInPanelKRVImageOptions never;
    EXPECT_EQ(never.ActivateWindow() + never.DeactivateWindow() + never.SycValueFromUI(), 0);
    EXPECT_EQ(never.InitializeUserPaneTitle(nullptr), 0);
    EXPECT_TRUE(never.GetCurrentPrinterString().isNull());
    EXPECT_TRUE(GCancelButtonKRV().UIEventHandler() && GImageAdjCancelButtonKRV().UIEventHandler());
    EXPECT_TRUE(GOKButtonKRV().UIEventHandler() && GOKButtonIAKRV().UIEventHandler());
    EXPECT_FALSE(GImageSettingsButtonKRV().UIEventHandler());
}

TEST_F(WindowTest, SettingsButtonAsksForTheFormByOneOption) {
    PopupWinInPanelKRVImageOptions unmade;
    panel.blackOver = window.get();
    panel.plain = &unmade;
    for (const char *key : {"QZBlackOverprint", "QZInvalidateColorProfile"}) {
        open(ppdOption(key, {"False", "True"}));
        auto button = std::make_unique<GImageSettingsButtonKRV>();
        opener = new ButtonView(&view);
        button->GImageSettingsButton(opener, "Title");
        add(panel, std::move(button), ImageSettingsButtonTag);
        start();
        if (key == QLatin1String("QZBlackOverprint"))
            EXPECT_TRUE(run([&] { window->DeactivateWindow(); }));
        else
            opener->click(); // the form that stands isn't the one asked for
    }
}

TEST_F(WindowTest, AdjustmentOkMirrorsAndCancelPutsMarksBack) {
    window = std::make_unique<RestoringWindow>();
    build<GOKButtonIAKRV, GImageAdjCancelButtonKRV>(
        ppdOption(kRgb, {"None", "Perceptual", "Vivid"}, "Perceptual") +
        ppdOption(kCmyk, {"X", "Y"}));
    // An event of the main panel's CMYK list disables a text.
    static const CtrlTag tags[] = {&CMYKColorCorrectionTag, nullptr};
    static const CtrlTagList rows[] = {nullptr, tags};
    static const CtrlConstrainTable table{rows};
    static const CtrlConstrainInfo info{.disableTable = &table};
    panel.rgb = addList<RGBCorrectionListCtrlKRV>(panel, kRgb, rgbColorCorrectonListTag);
    panel.cmyk = addList<GPPDListCtrlKRV>(panel, kCmyk, cmykColorCorrectionListTag, &info);
    auto *rgb = addList<RGBCorrectionListCtrlIAKRV>(*window, kRgb, RGBColorCorrectionIAListTag);
    auto *cmyk = addList<GPPDListCtrlKRV>(*window, kCmyk, CMYKCorrectionPopupButtonTag);
    auto note = std::make_unique<StaticTextEditControlKRVImageOptions>();
    auto *noteView = new TextView(&view);
    note->CreateControl(noteView, nullptr, nullptr, nullptr, QString(), nullptr, nullptr);
    auto *held = add(panel, std::move(note), CMYKColorCorrectionTag);
    static_cast<RestoringWindow *>(window.get())->list = rgb;
    start();

    EXPECT_TRUE(run([&] {
        menu(rgb)->chooseItem(1);
        EXPECT_EQ(host->marked(kRgb), "Vivid");
        cancel->click();
    }));
    EXPECT_EQ(host->marked(kRgb), "Perceptual");
    EXPECT_EQ(shown(panel.rgb), 0);
    for (const int item : {0, 1, 1}) {
        EXPECT_TRUE(run([&] {
            menu(rgb)->chooseItem(1);
            menu(cmyk)->chooseItem(item);
            text->setStringValue("bad"); // isn't asked here
            ok->click();
        }));
        EXPECT_EQ(shown(panel.rgb), 1);
        EXPECT_EQ(shown(panel.cmyk), item);
        EXPECT_EQ(held->constrainCount(), item) << "no event for equal items";
    }
    EXPECT_EQ(panel.rgb->GetValueFromControl()->word(), 1) << "the main panel commits at its save";
}

} // namespace
