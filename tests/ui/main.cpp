#include <gtest/gtest.h>

#include <QApplication>

// QAccessible::setActive only tells observers; what is active is the platform's business.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    // As if a screen reader listened.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    return RUN_ALL_TESTS();
}
