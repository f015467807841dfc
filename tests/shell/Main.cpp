// The application that all tests of a program share.
#include <gtest/gtest.h>

#include "desk/Toolkit.h"

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    return RUN_ALL_TESTS();
}
