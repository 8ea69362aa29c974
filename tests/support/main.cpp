#include <QApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(
        true); // settings of the person who runs the tests stay alone
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
