#include <gtest/gtest.h>
#include <stdlib.h>

#include "desktop/desktop_display.h"
#include "desktop/fixed_display.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

// Runs a command of the shell. Gives true when it succeeds.
bool Does(const std::string& command) { return system(command.c_str()) == 0; }

bool ScreenIs(const std::string& size) { return Does("xrandr | grep -q 'current " + size + ",'"); }

// The server that the test runs under has one mode, 1280 x 1024, and takes smaller ones.
TEST(DesktopDisplayTest, SwitchesAnXServer) {
    unsetenv("WAYLAND_DISPLAY");
    unsetenv("XDG_SESSION_TYPE");
    ASSERT_TRUE(Does("xrandr --newmode small 40 800 840 968 1056 600 601 605 628"));
    ASSERT_TRUE(Does("xrandr --newmode large 65 1024 1048 1184 1344 768 771 777 806"));
    ASSERT_TRUE(Does("xrandr --addmode screen small && xrandr --output screen --mode small"));
    EXPECT_EQ(DesktopDisplay().Change({1024, 768}, false), DisplayChange::Failed);
    EXPECT_TRUE(ScreenIs("800 x 600"));

    ASSERT_TRUE(Does("xrandr --addmode screen large"));
    DesktopDisplay display;
    EXPECT_EQ(display.Mode(0)->Width, 1280);
    EXPECT_EQ(display.Mode(2)->Height, 768);
    EXPECT_FALSE(display.Mode(3));
    EXPECT_EQ(display.Change({1024, 768}, false), DisplayChange::Successful);
    EXPECT_TRUE(ScreenIs("1024 x 768"));

    setenv("WAYLAND_DISPLAY", "wayland-0", 1);
    EXPECT_EQ(DesktopDisplay().Change({800, 600}, false), DisplayChange::Failed);
    EXPECT_TRUE(ScreenIs("1024 x 768"));
}

TEST(FixedDisplayTest, ListsTheModesOfAllMonitors) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "card0-HDMI");
    std::filesystem::create_directory(folder / "version");
    WriteFile(folder / "card0-HDMI/modes", "1920x1080\n1920x1080i\n800x600\n");
    FixedDisplay display(folder.Path().string());
    EXPECT_EQ(display.Mode(0)->Width, 1920);
    EXPECT_EQ(display.Mode(2)->Height, 600);
    EXPECT_FALSE(display.Mode(3));
    EXPECT_FALSE(FixedDisplay(folder / "missing").Mode(0));
}

}  // namespace
}  // namespace qarn
