#include "platform/views/alert.h"
#include "platform/views/button_view.h"
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
    std::unique_ptr<QWidget> host = std::make_unique<QWidget>();
    ButtonView *inHost = new ButtonView(host.get());
    QPointer<ModalWindow> window = new ModalWindow;
    ButtonView *cancel = new ButtonView(window);
    int cancels = 0;

    Child() {
        host->show();
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
    // clang-format off
    const std::tuple<const char *, void (*)(Child &), int> cases[] = {
        {"Escape", [](Child &c) { QTest::keyClick(c.window, Qt::Key_Escape); }, 1},
        {"Escape without Cancel",
         [](Child &c) { views::setEnabled(c.cancel, false); QTest::keyClick(c.window, Qt::Key_Escape); }, 0},
        {"title bar", [](Child &c) { c.window->close(); }, 1},
        {"stop", [](Child &c) { c.window->stopModal(); }, 0},
        {"close by code", [](Child &c) { c.window->closeWindow(); }, 0},
        {"hidden", [](Child &c) { c.window->hide(); }, 0},
        {"taken away", [](Child &c) { c.window->setParent(nullptr); }, 0},
        {"destroyed", [](Child &c) { delete c.window; }, 0},
        {"host destroyed", [](Child &c) { c.host.reset(); }, 0}};
    // clang-format on
    for (const auto &[name, act, cancels] : cases) {
        SCOPED_TRACE(name);
        Child child;
        inside([&] {
            EXPECT_EQ(child.window, ModalWindow::current());
            EXPECT_TRUE(child.window->isVisible() && views::isUsable(child.cancel));
            EXPECT_FALSE(views::isUsable(child.inHost));
            act(child);
        });
        child.window->runModal(child.host.get());
        EXPECT_EQ(cancels, child.cancels);
        EXPECT_EQ(nullptr, ModalWindow::current());
        EXPECT_TRUE(!child.host || views::isUsable(child.inHost));
        EXPECT_EQ(QString(name).contains("destroyed"), child.window.isNull());
        EXPECT_TRUE(!child.window || (!child.window->isVisible() && !child.window->parent()));
    }
}

TEST(ModalWindow, RunSurvivesAnInnerRun) {
    Child outer, inner;
    inside([&] {
        inside([&] {
            EXPECT_EQ(inner.window, ModalWindow::current());
            EXPECT_TRUE(views::isUsable(inner.cancel) && !views::isUsable(outer.cancel));
            QTest::keyClick(inner.window, Qt::Key_Escape);
        });
        inner.window->runModal(outer.window);
        EXPECT_EQ(outer.window, ModalWindow::current());
        EXPECT_TRUE(views::isUsable(outer.cancel));
        outer.window->stopModal();
    });
    outer.window->runModal(outer.host.get());
    EXPECT_TRUE(inner.cancels == 1 && outer.cancels == 0);
}

TEST(Alert, CanBeSeenAndAnswered) {
    auto host = std::make_unique<QWidget>();
    inside([&] {
        EXPECT_EQ("Head\n\nText", views::currentAlert());
        EXPECT_TRUE(views::dismissAlert());
    });
    views::runAlert(host.get(), "/no/such.png", "Head", "Text", "OK");
    EXPECT_FALSE(views::dismissAlert());
    inside([&] { host.reset(); });
    views::runAlert(host.get(), {}, {}, "gone with its window", "OK");
    EXPECT_TRUE(views::currentAlert().isNull());
}

} // namespace
