#include "platform/views/button_view.h"
#include "platform/views/form_loader.h"
#include "platform/views/popup_view.h"
#include "platform/views/text_view.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

// clang-format off
const char kForm[] = R"(<ui version="4.0"><widget class="ModalWindow" name="ModalWindow">
<widget class="TextView" name="TextView"><property name="buddy"><cstring>PopupView</cstring>
</property><property name="text"><string>&amp;Mode &amp;&amp; more:</string></property></widget>
<widget class="PopupView" name="PopupView"><property name="tag" stdset="0"><number>101</number>
</property><item><property name="text"><string>one</string></property></item></widget>
<widget class="ButtonView" name="ButtonView"><property name="default"><bool>true</bool>
</property><property name="text"><string>O&amp;K</string></property></widget>
<widget class="TextView" name="plain"><property name="text"><string>R&amp;D &lt;b&gt;</string>
</property></widget><widget class="CheckBoxView" name="CheckBoxView"/>
<widget class="RadioView" name="RadioView"/><widget class="SliderView" name="SliderView"/>
<widget class="StepperView" name="StepperView"/>
<widget class="TextFieldView" name="TextFieldView"/></widget></ui>)";
// clang-format on

QWidget *load(const char *form, const std::vector<views::Outlet> &outlets, QString *error = {}) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(form);
    file.close();
    return views::loadForm(file.fileName(), outlets, error);
}

TEST(Form, MakesOurViewsAndConnectsOutlets) {
    QPointer<TextView> title, plain;
    QPointer<PopupView> popup, missing = new PopupView, wrong;
    QPointer<ButtonView> ok;
    const std::unique_ptr<PopupView> before(missing);
    using views::outlet;
    const std::unique_ptr<QWidget> root(
        load(kForm, {outlet("TextView", title), outlet("plain", plain), outlet("PopupView", popup),
                     outlet("ButtonView", ok), outlet("plain", wrong), outlet("none", missing)}));
    ASSERT_TRUE(root && title && plain && popup && ok && !wrong && !missing);
    for (const QWidget *view : root->findChildren<QWidget *>(QRegularExpression("View$")))
        EXPECT_EQ(view->objectName(), view->metaObject()->className());
    EXPECT_EQ(8, root->findChildren<QWidget *>(QRegularExpression("View$")).size());
    EXPECT_STREQ("ModalWindow", root->metaObject()->className());
    views::assignMnemonics(root.get());
    EXPECT_EQ("&Mode && more:", title->text());
    EXPECT_EQ("R&D <b>", plain->text()); // has no buddy
    EXPECT_EQ("Mode & more:", title->stringValue());
    EXPECT_EQ("OK", ok->title());
    EXPECT_EQ(101, views::tag(popup));
    EXPECT_EQ("Mode & more", popup->accessibleName());
    EXPECT_TRUE(ok->isDefault() && !ok->autoDefault());
    for (const char *form : {"", "<ui", "<html/>"}) {
        QString error;
        EXPECT_EQ(nullptr, load(form, {outlet("TextView", title)}, &error));
        EXPECT_FALSE(title || error.isEmpty() || error.contains('\n')) << error.toStdString();
    }
}

TEST(Mnemonics, AreNeverTheSameForTwo) {
    QWidget window;
    QList<ButtonView *> views;
    for (int i = 0; i < 50; ++i) {
        views.append(new ButtonView(&window));
        views.last()->setTitle("a");
    }
    views::assignMnemonics(&window);
    QMap<QKeySequence, int> keys;
    for (const ButtonView *view : views)
        ++keys[view->shortcut()];
    EXPECT_EQ(keys.take({}), 50 - 26 - 10);
    EXPECT_EQ(keys.values(), QList<int>(26 + 10, 1));
}

TEST(Mnemonics, AreUniqueWhileLettersLast) {
    // clang-format off
    const std::pair<QStringList, QStringList> cases[] = {
        {{"Color Mode:", "Correction:", "Other"}, {"&Color Mode:", "C&orrection:", "O&ther"}},
        {{"Grey scale", "Gamma", "G"}, {"Grey &scale", "G&amma", "&G"}}, // the first makes room
        {{"Print", "R&D"}, {"P&rint", "R&&&D"}},                         // "P" is a plain button's
        {{"a", "a", "...", ""}, {"&a", "a(&C)", "(&B)...", ""}}, // letters have run out
        {{"明るさ:", "アール", "A"}, {"明るさ(&C):", "アール(&B)", "&A"}},
        {{"Ärger", "Яркость"}, {"Ä&rger", "&Яркость"}}};
    // clang-format on
    for (const auto &[titles, expected] : cases) {
        QWidget window;
        QPushButton other("&Print", &window);
        QWidget panel(&window);
        for (const QString &title : titles)
            (new ButtonView(&panel))->setTitle(title);
        views::assignMnemonics(&panel);
        views::assignMnemonics(&panel); // gives the same again
        QStringList texts;
        for (const auto *button : panel.findChildren<ButtonView *>())
            texts += button->text();
        EXPECT_EQ(expected, texts) << texts.join('|').toStdString();
    }
}

} // namespace
