#include "console/self_play_command.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

namespace qarn {
namespace {

TEST(SelfPlayCommand, PrintsOneLineForEachScenario) {
    std::ostringstream out;
    std::ostringstream progress;
    RunSelfPlay({.games = 3, .scenarios = {8, 7}, .seed = 2}, out, &progress);
    std::istringstream lines(out.str());
    std::string head, first, second, code;
    std::getline(lines, head);
    std::getline(lines, first);
    std::getline(lines, second);
    EXPECT_EQ(head.size(), first.size());
    long games = 0;
    std::istringstream(first) >> code >> games;
    EXPECT_EQ(code, "ER");
    EXPECT_EQ(games, 3);
    EXPECT_TRUE(second.starts_with("HM "));
    EXPECT_NE(progress.str().find("\r ER: 66 % played"), std::string::npos);
    EXPECT_TRUE(progress.str().ends_with("  \r"));
}

TEST(SelfPlayCommand, PrintsOneJsonObject) {
    std::ostringstream out;
    RunSelfPlay({.games = 3, .scenarios = {8}, .seed = 2, .json = true}, out, nullptr);
    const nlohmann::json object = nlohmann::json::parse(out.str());
    EXPECT_EQ(object["seed"], 2);
    const nlohmann::json& result = object["scenarios"].at(0);
    EXPECT_EQ(result["scenario"], "ER");
    EXPECT_EQ(result["games"].get<long>(),
              result["wins1"].get<long>() + result["wins2"].get<long>() +
                  result["stalemates"].get<long>() + result["endless"].get<long>());
    EXPECT_DOUBLE_EQ(result["turnsPerGame"].get<double>(), result["turns"].get<double>() / 3);
    EXPECT_EQ(out.str().find('\n'), out.str().size() - 1);
}

}  // namespace
}  // namespace qarn
