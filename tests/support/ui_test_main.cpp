// The main of every window test: one application object for all tests of the executable.
#include <QApplication>

#include <gtest/gtest.h>

#include "editing/widgets.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    brooklet::installAccessibility();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
