#include "main_panel_fixture.h"

#include "controls/popup_family.h"
#include "controls/text_entry_family.h"
#include "imagewindows/window_buttons.h"
#include "platform/views/button_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/text_field_view.h"

#include <QTest>
#include <QTimer>

namespace {

/// A text whose value "bad" isn't valid.
class Field : public TextEditCtrlKRVImageOptions {
public:
    bool InvalidateData() override { return ctrlUIDataBlkPtr->text() != QByteArray("bad"); }
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
    void build() {
        open(ppdOption("QZList", {"A", "B", "C"}));
        list = addList<GPPDListCtrlKRV>(*window, "QZList", 7);
        text = new TextFieldView(modal);
        auto entry = std::make_unique<Field>();
        entry->CreateControl(text, &record, nullptr, &access, kControlUserCurrent, nullptr);
        field = add(*window, std::move(entry), 0);
        ok = addButton<GOKButtonKRV>(*window);
        cancel = addButton<GCancelButtonKRV>(*window);
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
    }
    /// Opens the window and acts inside its run.
    void run(const std::function<void()> &act) {
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_EQ(ModalWindow::current(), modal) << "no run began";
            act();
            EXPECT_FALSE(modal->isVisible()) << "nothing ended the run";
            modal->closeWindow();
        });
        opener->click();
        EXPECT_EQ(ModalWindow::current(), nullptr);
        QCoreApplication::processEvents();
    }

    const CtrlAccessInfo access{};
    TextEditIniData record{.defaultText = "", .maxLength = 9};
    QWidget dialog;
    QPointer<ModalWindow> modal = new ModalWindow;
    PPDPopupControlKRVImageOptions *list = nullptr;
    Field *field = nullptr;
    TextFieldView *text = nullptr;
    ButtonView *ok = nullptr, *cancel = nullptr, *opener = nullptr;
};

TEST_F(WindowTest, OkCommitsAndEveryOtherEndDoesNot) {
    build();
    // clang-format off
    const std::pair<std::function<void()>, bool> cases[] = { // what ends the run, if it commits
        {[this] { QTest::keyClick(modal, Qt::Key_Escape); }, false},
        {[this] { modal->close(); }, false},
        {[this] { ok->click(); }, true},
    };
    // clang-format on
    for (const auto &[end, commits] : cases) {
        list->Disable(); // which opening gives up
        run([&] {
            EXPECT_EQ(modal->parentWidget(), &dialog) << "the window of this moment";
            EXPECT_EQ(shown(list), 0) << "what was committed";
            menu(list)->chooseItem(1);
            type("new");
            end();
        });
        EXPECT_EQ(list->GetValueFromControl()->word(), commits ? 2 : 1);
        EXPECT_STREQ(field->GetControlBlkPtr()->text(), commits ? "new" : "");
    }
    run([&] {
        type("bad");
        views::setHidden(text, true); // the focus goes, the edit stays
        ok->click();
        EXPECT_TRUE(modal->isVisible());
        EXPECT_EQ(list->GetValueFromControl()->word(), 2) << "nothing has moved";
        cancel->click();
    });
}

TEST_F(WindowTest, RunsNestAndSurviveTheirOwner) {
    build();
    ModalWindow inner;
    PopupWinInPanelKRVImageOptions innerWindow;
    innerWindow.PopupWinInPanel(&inner, QString());
    window->RunTimeAddNewWindow(&innerWindow);
    run([&] {
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_EQ(inner.parentWidget(), modal) << "over the window that opened it";
            EXPECT_FALSE(views::isUsable(ok));
            innerWindow.DeactivateWindow();
        });
        EXPECT_EQ(innerWindow.ActivateWindow(), 0);
        ok->click();
    });
    run([&] {
        window.reset();    // ends the run first
        panel.terminate(); // takes the button along that opened the window
        delete opener;
    });
}

TEST_F(WindowTest, RunEndsWithThePanel) {
    build();
    run([&] { panel.terminate(); });
}

} // namespace
