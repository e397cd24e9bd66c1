#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QAccessible::setActive(true);  // as if a screen reader listened
    return RUN_ALL_TESTS();
}
