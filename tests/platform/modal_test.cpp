#include "platform/views/alert.h"
#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

/// Does something inside the run that is about to begin.
void inside(std::function<void()> act) {
    QTimer::singleShot(0, qApp, std::move(act));
}

struct Child {
    QWidget host;
    QPointer<ModalWindow> window = new ModalWindow;
    ButtonView *cancel = new ButtonView(window);
    int cancels = 0;

    Child() {
        host.show();
        window->setCancelButton(cancel);
        cancel->setAction([this] {
            ++cancels;
            window->stopModal();
            window->closeWindow();
        });
    }
    ~Child() { delete window; }
};

TEST(ModalWindow, RunEndsOnEveryRoadAndOnlyAPersonPressesCancel) {
    const struct {
        const char *name;
        void (*act)(Child &);
        int cancels;
        bool alive;
    } cases[] = {
        {"Escape", [](Child &c) { QTest::keyClick(c.window, Qt::Key_Escape); }, 1, true},
        {"title bar", [](Child &c) { c.window->close(); }, 1, true},
        {"Cancel", [](Child &c) { c.cancel->click(); }, 1, true},
        {"stop", [](Child &c) { c.window->stopModal(); }, 0, true},
        {"close by code", [](Child &c) { c.window->closeWindow(); }, 0, true},
        {"hidden", [](Child &c) { c.window->hide(); }, 0, true},
        {"taken away", [](Child &c) { c.window->setParent(nullptr); }, 0, true},
        {"without Cancel",
         [](Child &c) {
             views::setEnabled(c.cancel, false);
             QTest::keyClick(c.window, Qt::Key_Escape);
         },
         0, true},
        {"destroyed", [](Child &c) { delete c.window; }, 0, false},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        Child child;
        CheckBoxView inHost(&child.host);
        QWidget help;
        inside([&] {
            EXPECT_EQ(child.window, ModalWindow::current());
            EXPECT_TRUE(child.window->isVisible() && views::isUsable(child.cancel));
            EXPECT_TRUE(!views::isUsable(&inHost) && views::isUsable(&help));
            row.act(child);
        });
        child.window->runModal(&child.host);
        EXPECT_EQ(row.cancels, child.cancels);
        EXPECT_TRUE(views::isUsable(&inHost));
        EXPECT_EQ(nullptr, ModalWindow::current());
        ASSERT_EQ(row.alive, !child.window.isNull());
        EXPECT_TRUE(!row.alive || (!child.window->isVisible() && !child.window->parentWidget()));
    }
}

TEST(ModalWindow, RunSurvivesItsHostItsParentAndAnInnerRun) {
    auto host = std::make_unique<QWidget>();
    QPointer<ModalWindow> window = new ModalWindow;
    inside([&] { host.reset(); });
    window->runModal(host.get());
    EXPECT_FALSE(window); // went with the window that it stood before

    auto parent = std::make_unique<QWidget>();
    QWidget other;
    window = new ModalWindow(parent.get());
    inside([&] { parent.reset(); });
    window->runModal(&other);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);

    Child outer;
    Child inner;
    inside([&] {
        inside([&] {
            EXPECT_EQ(inner.window, ModalWindow::current());
            EXPECT_FALSE(views::isUsable(outer.cancel)); // blocked by the inner window
            EXPECT_TRUE(views::isUsable(inner.cancel));
            QTest::keyClick(inner.window, Qt::Key_Escape);
        });
        inner.window->runModal(outer.window);
        EXPECT_EQ(outer.window, ModalWindow::current());
        EXPECT_TRUE(views::isUsable(outer.cancel));
        outer.window->stopModal();
    });
    outer.window->runModal(&outer.host);
    EXPECT_EQ(1, inner.cancels);
    EXPECT_EQ(0, outer.cancels);
    EXPECT_FALSE(views::isUsable(outer.cancel)); // its window is off the screen
}

TEST(Alert, CanBeSeenAndAnswered) {
    QWidget host;
    host.show();
    EXPECT_FALSE(views::dismissAlert());
    bool seen = false;
    inside([&] {
        seen = views::currentAlert() == "<b>Wrong & bad</b>";
        inside([&] {
            EXPECT_EQ("Head\n\nText", views::currentAlert());
            EXPECT_TRUE(views::dismissAlert());
        });
        views::runAlert(nullptr, {}, "Head", "Text", "OK");
        EXPECT_EQ("<b>Wrong & bad</b>", views::currentAlert());
        EXPECT_TRUE(views::dismissAlert());
    });
    views::runAlert(&host, "/no/such.png", {}, "<b>Wrong & bad</b>", "R&D");
    EXPECT_TRUE(seen);
    EXPECT_TRUE(views::currentAlert().isNull());

    auto parent = std::make_unique<QWidget>();
    inside([&] { parent.reset(); });
    views::runAlert(parent.get(), {}, {}, "gone with its window", "OK");
    EXPECT_TRUE(views::currentAlert().isNull());
}

} // namespace
