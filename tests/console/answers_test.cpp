#include <gtest/gtest.h>

#include "console/session.h"
#include "console/words.h"
#include "shell/user_settings.h"
#include "support/console_game.h"
#include "support/sequence.h"

namespace qarn {
namespace {

using Json = nlohmann::json;

std::string Text(const Json& value) { return value.is_null() ? "none" : value.dump(); }

// Attack, defense, and the chances of win, tie, lose and the loss after a win.
std::string Told(const Json& attack) {
    if (attack.is_null()) return "none";
    std::string text = Text(attack["attack"]) + ":" + Text(attack["defense"]);
    for (const char* key : {"win", "tie", "lose", "lossAfterWin"}) text += " " + Text(attack[key]);
    return text + (attack["burns"] ? " burns" : "");
}

// The reach as squares with their costs, "!" behind those that are attacked; or the odds of the
// attack by command and of the direct one.
std::string AnswerOf(const Json& object) {
    if (!object["ok"]) return object["error"];
    if (object.contains("odds")) {
        return Told(object["odds"]["command"]) + ", " + Told(object["odds"]["direct"]);
    }
    std::string text;
    for (const Json& one : object.at("reach")) {
        text += (text.empty() ? "" : " ") + Text(one["X"]) + "," + Text(one["Y"]) + "=" +
                Text(one["cost"]) + (one["attack"] ? "!" : "");
    }
    return text.empty() ? "nowhere" : text;
}

class Answers : public testing::TestWithParam<Sequence> {};

// The answer to the last command of each line, which changes nothing.
TEST_P(Answers, AreThoseToPrograms) {
    std::string commands = "state";
    const auto ask = [&](const std::string& more) {
        commands += "; " + more;
        const auto objects = ConsoleGame(SavedGame(GetParam().position)).ForProgram(commands);
        EXPECT_EQ(objects.back()["record"], objects.at(objects.size() - 2)["record"]);
        return AnswerOf(objects.back()) + "\n";
    };
    EXPECT_EQ(PlayLines(GetParam().transcript, ask), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Questions, Answers,
                         testing::ValuesIn(ReadSequences("console/answers.txt")), NameOf);

TEST(Reach, TellsTheWayAndIsNotToldAgain) {
    const auto path = ConsoleGame(SavedGame("Q@16,10 Z@1,1")).ForProgram("reach 16 10; state");
    EXPECT_EQ(path[0]["reach"][8]["path"], Json::parse("[[16,10],[16,9],[17,9],[17,8]]"));
    EXPECT_TRUE(path[0]["happenings"].empty() && !path[1].contains("reach"));
}

// The Corsair is the last of his side, and beaten for certain.
TEST(Hints, TellAndShowTheWinThatIsThere) {
    ConsoleGame game(SavedGame("WS@12,10 TS@12,10 Q@9,10 Z@15,10"));
    const auto objects = game.ForProgram(
        "state; menu mnuHint; hint; press cmdMove; click 9 10; press cmdDoneSel; click 10 10; "
        "hint");
    EXPECT_TRUE(objects[0]["hint"].is_null());
    const Json& hint = objects[2]["hint"];
    EXPECT_EQ(hint, objects[1]["hint"]);
    EXPECT_EQ(hint["target"], (Json{15, 10}));
    EXPECT_EQ(hint["odds"]["win"], 1.0);
    EXPECT_EQ(hint["path"].front(), hint["from"]);
    EXPECT_EQ(objects[2]["lblStatus"], hint["sentence"]);
    EXPECT_EQ(objects[2]["record"], objects[0]["record"]);
    EXPECT_EQ(objects[7]["error"], "mnuHint can not be chosen now.");
    EXPECT_TRUE(objects[7]["hint"].is_null());
    WriteFile(game.path, SavedGame("WS@12,10 TS@12,10 Q@9,10 Z@15,10"));
    const std::string sentence = hint["sentence"];
    EXPECT_TRUE(Has(game.ForPerson("hint"), "\n" + sentence + "\n"));
}

TEST(AnswersInWords, AreThoseToAPerson) {
    ConsoleGame game(SavedGame("LS@14,4 SK@14,4 WA@15,4 ZA1@14,5 Z@9,1 BT@18,1"));
    const std::string text =
        game.ForPerson("odds 14 4 15 4; odds 14 4 14 5; odds 15 4 14 4; reach 9 1; reach 18 1");
    for (const char* part :
         {"\nBy the Attack command, 10 against 6: burns it down.\n",
          "\nBy stepping in, 10 against 5: wins 20 %, ties 20 %, loses 60 %; after a win one in "
          "five costs a character.\n",
          "\nBy the Attack command, 3 against 12: wins 0 %, ties 0 %, loses 100 %.\n",
          "> The cart and/or boat can not go on its own.\n", "\nFor 2 mobility units:"}) {
        EXPECT_TRUE(Has(text, part));
    }
}

TEST(JournalCommand, GoesOnWithAGameThatCouldNotBeLeft) {
    ConsoleGame game(SavedGame("Q@9,10 WA@15,4"));
    Session session({game.settings, *game.fileTypes, {}});
    session.Execute({"open", game.path});
    session.Execute({"answer", "yes"});
    session.Execute({"pass"});
    WriteFile(game.path, "another program's");  // which is asked about, and nobody answers
    EXPECT_THROW(session.Execute({"open", game.folder / "other.tgf"}), Refusal);
    session.Execute({"journal"});
    const std::vector<std::string> told{"Turn 1: Red", "  Nothing was done.", "Turn 2: Blue"};
    EXPECT_EQ(session.TakeAnswers().journal, told);
}

TEST(JournalCommand, TellsTheOpponentsTurnAndWhatItSaid) {
    ConsoleGame game(SavedGame("computer1 WS@10,10 TS@10,10 Z@11,10 ZA1@1,1"));
    game.settings.values["QARN/OwnGroupsOnly/" + GetUserKey("Al")] = "True";
    const auto objects = game.ForProgram("level captain; random 0.5 0.5; timer 10; journal; state");
    std::string lines;
    for (const Json& line : objects[3]["journal"]) lines += line.get<std::string>() + "\n";
    EXPECT_EQ(lines.find("House rules: own groups only.\nTurn 1: Red, played by Captain\n"), 0u);
    EXPECT_TRUE(Has(lines,
                    "\n  Told meanwhile: Captain will have to initiate a direct attack to "
                    "proceed.  Does Captain want to attack? Yes. Captain will win if"));
    EXPECT_FALSE(objects[4].contains("journal"));
    EXPECT_TRUE(Has(game.ForPerson("journal"),
                    "House rules: own groups only.\nTurn 1: Red, played by Classic\n"));
}

// ---- The Play menu by commands ----

TEST(PlayMenu, TakesBackByCommands) {
    ConsoleGame game(SavedGame("LS@9,10 SK@9,10 ZA1@10,10 Z@1,1"));
    const auto objects = game.ForProgram(
        "state; press cmdMove; click 9 10; untick 1; undo; press cmdDoneSel; click 9 9; cancel; "
        "undo; cancel");
    const auto same = [&](std::size_t a, std::size_t b) {
        for (const char* key : {"record", "squares", "chkItems", "buttons", "menus", "lblStatus"}) {
            EXPECT_EQ(objects[a][key], objects[b][key]) << a << " " << b << " " << key;
        }
    };
    same(4, 2);
    EXPECT_NE(objects[6]["record"], objects[5]["record"]);
    same(7, 0);
    EXPECT_EQ(objects[8]["error"], "mnuTakeBack can not be chosen now.");
    EXPECT_EQ(objects[9]["error"], "mnuCancelMove can not be chosen now.");
}

TEST(PlayMenu, AsksByQueuedAnswers) {
    ConsoleGame game(SavedGame("Q@9,10 WA@15,4"));
    const auto objects =
        game.ForProgram("pass; answer yes; pass; resign; answer no yes; draw; draw; state");
    EXPECT_EQ(objects[0]["boxes"][0]["answer"], "no");
    EXPECT_EQ(objects[0]["record"]["bytTurn"], 1);
    EXPECT_EQ(objects[2]["record"]["bytTurn"], 2);
    EXPECT_EQ(objects[2]["happenings"], (Json{{{"what", "turn"}, {"side", 2}}}));
    EXPECT_FALSE(objects[3]["ended"] || objects[5]["ended"]);
    EXPECT_EQ(objects[6]["happenings"], (Json{{{"what", "end"}, {"winner", 0}}}));
    EXPECT_TRUE(objects[6]["ended"]);
}

}  // namespace
}  // namespace qarn
