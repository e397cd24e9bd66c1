#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "rules/attack_mode.h"
#include "rules/casualties.h"
#include "rules/movement.h"
#include "rules/questions/casualties.h"
#include "rules/questions/step.h"
#include "rules/questions/terrain_effect.h"
#include "rules/terrain.h"
#include "scenarios/setup.h"
#include "support/sequence.h"

namespace qarn {
namespace {

class Rules : public testing::TestWithParam<Sequence> {};

TEST_P(Rules, GoAsPlayed) { ExpectSequence(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Moves, Rules, testing::ValuesIn(ReadSequences("rules/moves.txt")), NameOf);
INSTANTIATE_TEST_SUITE_P(Attacks, Rules, testing::ValuesIn(ReadSequences("rules/attacks.txt")),
                         NameOf);

TEST(Sequences, RefuseWhatTheyDoNotKnow) {
    for (const char* position : {"Q@13,4x", "Q@13", "QQ@1,1", "CT@1,1 CT@2,2", "turnip", "turn2x",
                                 "Q.Attack=", "abbeys", "Q.Strength=5", "1,1", "computer3"}) {
        EXPECT_ANY_THROW(PositionWords{position}) << position;
    }
    EXPECT_THROW(ReadSequences("rules/none.txt"), std::runtime_error);
    EXPECT_THROW(ReadSequences("CMakeLists.txt"), std::runtime_error);
    EXPECT_NONFATAL_FAILURE(ExpectSequence({"", "HM", "press cmdDoneSel", ""}), "refused");
}

// The cost of a step onto each terrain, codes 0 to 8, for those who go together. The landmarks are
// made dear, so that it shows who pays for them.
TEST(Movement, CostsOfSteps) {
    PlayedGame played("HM");
    GameRecord& record = played.game.record;
    record.TerrainKinds[Fortress].Mobility = 7;
    record.TerrainKinds[Abbey].Mobility = 8;
    const std::vector<std::pair<std::vector<std::uint8_t>, std::string>> rows{
        {{1}, "151132278"},      // on foot
        {{3}, "121132178"},      // climbs
        {{12}, "111111171"},     // flies
        {{3, 16}, "151132278"},  // not together, though
        {{12, 13}, "151132278"}, {{3, 19}, "151132278"}};
    for (const auto& [people, expected] : rows) {
        std::string costs;
        for (std::uint8_t T = Plain; T <= Abbey; ++T) {
            costs += std::to_string(StepCost(PositionOf(record), PeopleSet::Of(people), T));
        }
        EXPECT_EQ(costs, expected) << "of " << int{people[0]};
    }
}

// A step back to where the group still stands in the position: it does not meet itself there.
TEST(Movement, AGroupIsWhereTheQuestionPutsIt) {
    const Position alone = PositionIn("Q@9,10 Z@1,1");
    const Position both = PositionIn("Q@9,10 HF@9,10 Z@1,1");
    EXPECT_EQ(AskStep(alone, {{1}, {10, 10}, 2}, {9, 10}).result, StepResult::PlainStep);
    EXPECT_EQ(AskStep(both, {{1}, {10, 10}, 2}, {9, 10}).result, StepResult::JoinedOwn);
    EXPECT_EQ(AskStep(both, {{1, 17}, {10, 10}, 2}, {9, 10}).result, StepResult::PlainStep);
    EXPECT_EQ(AskStep(both, {{1}, {10, 10}, 0}, {9, 10}).result, StepResult::NotEnoughMobility);
}

TEST(Movement, TheCurrentSquareComesBack) {
    for (const char* look :
         {"click 14 7", "press cmdSquareDetails; click 1 1"}) {  // too dear, away
        PlayedGame played("HF@13,7 Z@1,1");
        played.Play("> press cmdMove; click 13 7; press cmdDoneSel");
        played.Play(std::string("> ") + look);
        EXPECT_EQ(played.game.record.bytCurrentX, 13) << look;
        EXPECT_EQ(played.game.record.bytCurrentY, 7) << look;
    }
}

// The computer can press a button that is disabled for a person who looks around.
TEST(Modes, AreLeftTogetherWithDetailsMode) {
    for (const auto press : {cmdMove_Click, cmdAttack_Click}) {
        PlayedGame played("Q@9,10 Z@1,1");
        const Controls& controls = played.game.controls;
        press(played.game);
        played.Play("> press cmdSquareDetails; click 1 1");
        press(played.game);
        EXPECT_FALSE(played.game.record.blnDetailsMode || controls.mnuPeopleDetails.Checked ||
                     controls.fraQuickDetails.Visible);
        EXPECT_TRUE(controls.cmdMove.Enabled && controls.cmdAttack.Enabled &&
                    controls.File.Enabled);
    }
}

// So it can while the items are chosen: then nobody lands on water, though a bird did before.
TEST(Modes, AMoveIsLeftWhileItsItemsAreChosen) {
    PlayedGame played("J@5,1 Q@16,1 BT@16,1 Z@1,10");
    played.Play("> press cmdMove; click 5 1; press cmdDoneSel; click 6 1; press cmdMove");
    played.Play("> press cmdMove; click 16 1");
    cmdMove_Click(played.game);
    EXPECT_EQ(played.dialogs.boxes.size(), 1u);  // which put the bird back
    EXPECT_EQ(played.game.record.bytTurn, 2);
    EXPECT_FALSE(played.game.record.blnMoveUnderWay || played.game.controls.chkItems[1].Visible);
}

// What becomes of 10 attack and 10 defense units: under a defender who is attacked by command, and
// directly, and under an attacker, directly and by command.
TEST(Combat, TerrainModifiers) {
    PlayedGame played("abbey HM");
    GameRecord& record = played.game.record;
    const char* rows[] = {
        "10/10 10/10 10/10 10/10", "barred 10/12 13/10 10/10", "10/10 10/12 10/10 10/10",
        "10/10 10/10 10/10 10/10", "10/11 10/11 10/10 10/10",  "10/10 10/10 10/10 10/10",
        "10/12 10/12 10/10 10/10", "10/13 10/13 10/13 10/13",  "10/14 10/14 10/14 10/14"};
    for (std::uint8_t T = Plain; T <= Abbey; ++T) {
        record.bytTerrain[1][1] = T;
        std::string row;
        for (const auto& [defending, direct] :
             {std::pair{true, false}, {true, true}, {false, true}, {false, false}}) {
            const TerrainEffect effect =
                TerrainModifiers(PositionOf(record), {1, 1}, defending, 10, 10, direct);
            row += effect.blnAllowed ? std::to_string(effect.bytAttackOut) + "/" +
                                           std::to_string(effect.bytDefenseOut) + " "
                                     : "barred ";
        }
        EXPECT_EQ(row, std::string(rows[T]) + " ") << "terrain " << int{T};
    }
}

TEST(Casualties, TheComputersChoice) {
    const Position position =
        PositionIn("Q@1,1 TS@1,1 J@1,1 SK@1,1 BT@2,2 V@2,2 CT@3,3 Z@9,9 Z.Attack=97");
    EXPECT_EQ(ChooseDeadAnimal(position, {1, 1}), 3);  // J and SK are equal: the first is kept
    EXPECT_EQ(ChooseDeadAnimal(position, {2, 2}), 1);
    EXPECT_EQ(ChooseDeadAnimal(position, {3, 3}), 1);  // nobody
    EXPECT_EQ(ChooseDeadAnimal(position, {9, 9}), 1);  // nobody below 100
}

TEST(Casualties, BoxesBeyondTheListAreUnticked) {
    PlayedGame played("LS@15,10 SK@15,10 HF@15,10 ZA1@16,10 LS.Attack=9");
    played.Play(
        "> press cmdMove; click 15 10; untick 1; press cmdDoneSel; click 15 9; press cmdMove; "
        "press cmdAttack; click 15 10; roll 5; click 16 10");
    EXPECT_TRUE(played.game.record.blnCasualtyPending);
    for (std::size_t box = 2; box <= checkBoxCount; ++box) {
        EXPECT_FALSE(played.game.controls.chkItems[box].Visible) << box;
        EXPECT_FALSE(played.game.controls.chkItems[box].Value) << box;
    }
}

TEST(Casualties, TheCountStopsAtTheFirstTransport) {
    PlayedGame played("Q@1,1 HF@1,1 J@1,1 Z@9,9 V.Side=0");  // HF comes behind V
    CountPeople(played.game);
    EXPECT_EQ(played.game.record.bytPeopleLeft[1], 2);
    EXPECT_EQ(played.game.record.bytPeopleLeft[2], 1);
}

}  // namespace
}  // namespace qarn
