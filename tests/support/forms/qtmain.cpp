#include <QApplication>

#include <gtest/gtest.h>

// The forms need an application object. They run on the offscreen platform, with the screen
// the test run configures, or Qt's own offscreen screen when run by hand.
int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
