#include <gtest/gtest.h>
#include <stdlib.h>

#include "desktop/settings_file.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

TEST(SettingsFile, KeepsValuesAcrossRuns) {
    const char* config = getenv("XDG_CONFIG_HOME");
    ASSERT_NE(config, nullptr) << "The settings of whoever runs this would be changed.";
    const std::string file = std::string(config) + "/QARN.ini";
    std::filesystem::remove_all(config);
    SettingsFile store;
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");

    const std::string value = " C:\\games; #1 = \"Zoë's\"\t\n";
    store.Write("QARN", "Summary", "1", "False");
    store.Write("QARN", "Filepath", "1", value);
    store.Write("QARN", "Filepath", "2", "of another user");
    store.Write("QARN", "Filepath", "", "of nobody");
    SettingsFile later;
    EXPECT_EQ(later.Read("QARN", "Summary", "1", "True"), "False");
    EXPECT_EQ(later.Read("QARN", "Filepath", "1", ""), value);
    EXPECT_EQ(later.Read("QARN", "Filepath", "2", ""), "of another user");
    EXPECT_EQ(later.Read("QARN", "Filepath", "", ""), "of nobody");
    EXPECT_EQ(later.Read("Other", "Filepath", "1", "none"), "none");

    WriteFile(file, "this is not\x01 a settings file");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    store.Write("QARN", "Summary", "1", "False");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "False");

    std::filesystem::remove_all(config);
    WriteFile(config, "in the way");
    try {
        store.Write("QARN", "Summary", "1", "True");
        ADD_FAILURE() << "It was written.";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(error.what(), "Not a directory.\n" + file);
    }
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    std::filesystem::remove(config);
}

}  // namespace
}  // namespace qarn
