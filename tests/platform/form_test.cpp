#include "platform/views/form_loader.h"

#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "platform/views/text_view.h"

#include <QKeySequence>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace {

QByteArray widget(const char *type, const char *name, const QByteArray &properties = {}) {
    return QByteArray("<widget class=\"") + type + "\" name=\"" + name + "\">" + properties +
           "</widget>";
}
QByteArray text(const char *value) {
    return QByteArray("<property name=\"text\"><string>") + value + "</string></property>";
}

const QByteArray kForm =
    "<ui version=\"4.0\"><widget class=\"ModalWindow\" name=\"root\">" +
    widget("TextView", "title",
           text("&amp;Mode &amp;&amp; more:") +
               "<property name=\"buddy\"><cstring>popup</cstring></property>") +
    widget("TextView", "plain", text("R&amp;D &lt;b&gt;")) +
    widget("PopupView", "popup",
           "<property name=\"tag\" stdset=\"0\"><number>101</number></property>"
           "<item><property name=\"text\"><string>one</string></property></item>") +
    widget("ButtonView", "ok",
           text("O&amp;K") + "<property name=\"default\"><bool>true</bool></property>") +
    widget("ButtonView", "cancel", text("Cancel")) +
    widget("CheckBoxView", "box", text("A &amp;&amp; B")) + widget("RadioView", "radio") +
    widget("SliderView", "slider") + widget("StepperView", "stepper") +
    widget("TextFieldView", "field", text("typed")) + "</widget></ui>";

QWidget *load(const QByteArray &form, const std::vector<views::Outlet> &outlets = {},
              QString *error = nullptr) {
    QTemporaryFile file;
    if (!file.open())
        return nullptr;
    file.write(form);
    file.close();
    return views::loadForm(file.fileName(), outlets, error);
}

TEST(Form, MakesOurViewsAndConnectsOutlets) {
    QPointer<ModalWindow> root;
    QPointer<TextView> title, plain;
    QPointer<PopupView> popup;
    QPointer<ButtonView> ok, cancel;
    QPointer<CheckBoxView> box;
    QPointer<RadioView> radio;
    QPointer<SliderView> slider, wrong;
    QPointer<StepperView> stepper, missing = new StepperView;
    QPointer<TextFieldView> field;
    const std::unique_ptr<StepperView> before(missing);
    using views::outlet;
    const std::unique_ptr<QWidget> view(
        load(kForm, {outlet("root", root), outlet("title", title), outlet("plain", plain),
                     outlet("popup", popup), outlet("ok", ok), outlet("cancel", cancel),
                     outlet("box", box), outlet("radio", radio), outlet("slider", slider),
                     outlet("stepper", stepper), outlet("field", field), outlet("title", wrong),
                     outlet("none", missing)}));
    ASSERT_TRUE(root && title && plain && popup && ok && cancel && box && radio && slider &&
                stepper && field);
    EXPECT_FALSE(wrong || missing);
    EXPECT_EQ("Mode & more:", title->stringValue());
    EXPECT_EQ("R&D <b>", plain->stringValue());
    EXPECT_EQ("OK", ok->title());
    EXPECT_EQ("A & B", box->title());
    EXPECT_EQ("typed", field->stringValue());
    EXPECT_EQ(101, views::tag(popup));
    EXPECT_EQ("one", popup->itemTitle(0));
    EXPECT_EQ("Mode & more", popup->accessibleName());
    EXPECT_TRUE(ok->isDefault() && !ok->autoDefault() && !cancel->autoDefault());
}

TEST(Form, TellsWhyItCannotLoad) {
    QPointer<TextView> outlet = new TextView;
    const std::unique_ptr<TextView> before(outlet);
    for (const QByteArray &form : {QByteArray(), QByteArray("<ui"), QByteArray("<html/>")}) {
        QString error;
        EXPECT_EQ(nullptr, load(form, {views::outlet("x", outlet)}, &error));
        EXPECT_FALSE(error.isEmpty() || error.contains('\n')) << error.toStdString();
        EXPECT_FALSE(outlet);
    }
    QString error;
    EXPECT_EQ(nullptr, views::loadForm("/no/such.ui", {}, &error));
    EXPECT_TRUE(error.startsWith("/no/such.ui: ")) << error.toStdString();
}

TEST(Mnemonics, AreUniqueWhileLettersLast) {
    const struct {
        QStringList titles;
        QString letters; // "." for none
    } cases[] = {
        {{"Color Mode:", "Correction:", "Other"}, "COT"},
        {{"Grey scale", "Gamma", "G"}, "SAG"}, // the first must make room
        {{"Print", "R&D"}, "RD"},              // "P" belongs to a plain button
        {{"a", "a"}, "AA"},                    // letters have run out
        {{"明るさ:", "アール", "A"}, "CBA"},
        {{"Ärger", "Яркость"}, "RЯ"},
        {{"", "..."}, ".A"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.titles.join('|').toStdString());
        QWidget window;
        QPushButton other("&Print", &window);
        QWidget panel(&window);
        QList<ButtonView *> buttons;
        for (const QString &title : row.titles) {
            buttons += new ButtonView(&panel);
            buttons.last()->setTitle(title);
        }
        for (int again = 0; again < 2; ++again) {
            views::assignMnemonics(&panel);
            QString letters;
            for (int i = 0; i < buttons.size(); ++i) {
                EXPECT_EQ(row.titles[i], buttons[i]->title());
                const QString key = QKeySequence::mnemonic(buttons[i]->text()).toString();
                letters += key.isEmpty() ? QChar('.') : key.back();
            }
            EXPECT_EQ(row.letters, letters) << letters.toStdString();
        }
    }
}

TEST(Mnemonics, FollowTheTabOrderAndKeepWindowsApart) {
    QWidget panel;
    ButtonView first(&panel), second(&panel);
    TextView label(&panel), without(&panel);
    PopupView popup(&panel);
    ModalWindow window(&panel);
    ButtonView inWindow(&window);
    label.setBuddy(&popup);
    for (views::Captioned *view :
         {static_cast<views::Captioned *>(&first), static_cast<views::Captioned *>(&second),
          static_cast<views::Captioned *>(&label), static_cast<views::Captioned *>(&without),
          static_cast<views::Captioned *>(&inWindow)})
        view->setCaption("Set");
    QWidget::setTabOrder(&second, &first);
    views::assignMnemonics(&panel);
    EXPECT_EQ("&Set", second.text());
    EXPECT_EQ("S&et", first.text());
    EXPECT_EQ("Se&t", label.text());
    EXPECT_EQ("Set", without.text());
    EXPECT_EQ("&Set", inWindow.text());
}

} // namespace
