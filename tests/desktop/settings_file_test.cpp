#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include "desktop/settings_file.h"
#include "support/temp_folder.h"
#include "support/text.h"

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

    WriteFile(file, "[House]\na=1\nthis is not\x01 a setting\n=2\n[Offer\n# mine\nb=3\n");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    store.Write("QARN", "Summary", "1", "False");
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "False");
    EXPECT_EQ(store.Read("QARN", "House", "a", ""), "1");
    EXPECT_EQ(store.Read("QARN", "House", "b", ""), "3") << "a damaged line stands before it";
    EXPECT_TRUE(Has(ReadFile(file), "# mine"));

    std::filesystem::remove_all(config);
    WriteFile(config, "in the way");
    EXPECT_EQ(ErrorOf<std::runtime_error>([&] { store.Write("QARN", "Summary", "1", "True"); }),
              "Not a directory.\n" + file);
    EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
    std::filesystem::remove(config);
}

TEST(SettingsFile, PassesOverWhatNobodyCanHaveWritten) {
    const std::string config = getenv("XDG_CONFIG_HOME");
    std::filesystem::create_directories(config);
    const std::string file = config + "/QARN.ini";
    const std::string large = "[Summary]\n1=False\n#" + std::string(1 << 20, 'x');
    for (const bool pipe : {true, false}) {
        std::filesystem::remove(file);
        ASSERT_TRUE(!pipe || mkfifo(file.c_str(), 0600) == 0);
        if (!pipe) WriteFile(file, large);
        SettingsFile store;
        testing::internal::CaptureStderr();
        for (int time = 0; time < 2; ++time) {
            EXPECT_EQ(store.Read("QARN", "Summary", "1", "True"), "True");
        }
        const std::string why = pipe ? "It is not an ordinary file.\n" : "File too large.\n";
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "The settings are passed over: " + why + file + "\n");
        EXPECT_THROW(store.Write("QARN", "Summary", "1", "True"), std::runtime_error);
    }
    EXPECT_EQ(ReadFile(file), large);
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace qarn
