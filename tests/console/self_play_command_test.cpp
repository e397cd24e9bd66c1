#include "console/self_play_command.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

namespace qarn {
namespace {

TEST(SelfPlayCommand, PrintsALineForEachScenario) {
    std::ostringstream out;
    std::ostringstream progress;
    RunSelfPlay({.games = 3, .scenarios = {8, 7}, .seed = 2}, out, &progress);
    const std::regex table("Scenario .*\nER +3 .*\nHM +3 .*\n");
    EXPECT_TRUE(std::regex_match(out.str(), table)) << out.str();
    EXPECT_NE(progress.str().find("\r ER: 66 % played"), std::string::npos) << progress.str();
}

TEST(SelfPlayCommand, PrintsOneJsonObject) {
    std::ostringstream out;
    RunSelfPlay({.games = 3, .scenarios = {8}, .seed = 2, .json = true}, out, nullptr);
    const nlohmann::json object = nlohmann::json::parse(out.str());
    const nlohmann::json& result = object["scenarios"].at(0);
    EXPECT_EQ(object["seed"], 2);
    EXPECT_EQ(result["scenario"], "ER");
    EXPECT_EQ(result["games"], 3);
    EXPECT_DOUBLE_EQ(result["turnsPerGame"].get<double>(), result["turns"].get<double>() / 3);
    EXPECT_EQ(out.str().find('\n'), out.str().size() - 1);
}

}  // namespace
}  // namespace qarn
