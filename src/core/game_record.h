#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/group.h"
#include "core/house_rules.h"
#include "core/last_move.h"
#include "core/path.h"
#include "core/people_set.h"
#include "core/square.h"
#include "core/standstill.h"

namespace qarn {

inline constexpr int checkBoxCount = 11;

/// One group: a character, a band, or a transport piece. Its texts are the scenario's, which are
/// constant.
struct PeopleRecord : Group {
    std::string_view Name;
    std::string_view Code = "   ";  ///< exactly 3 characters, padded with blanks

    friend bool operator==(const PeopleRecord&, const PeopleRecord&) = default;
};

/// What one kind of terrain costs and gives.
struct TerrainKindRecord : TerrainValues {
    std::string_view Comments;

    friend bool operator==(const TerrainKindRecord&, const TerrainKindRecord&) = default;
};

/// The action that the computer is replaying through the window's controls.
struct ActionRecord {
    bool blnAIBusy = false;
    bool blnAttacks = false;        ///< with the Attack command: the path leads to the target
    bool blnAnswersItself = false;  ///< its boxes are not the person's to answer
    bool blnOwnMove = false;        ///< the move or attack that the action began is still under way
    std::uint8_t bytAIStartX = 0, bytAIStartY = 0;
    PeopleSet goes = {};        ///< who moves; none: everybody on the starting square
    std::uint8_t casualty = 0;  ///< who is to die if someone must; 0: the weakest
    /// Direction codes, used at indexes 1 to bytAIPathLength.
    std::array<std::uint8_t, longestPath + 1> bytAIPath{};
    std::uint8_t bytAIPathLength = 0;
    std::uint8_t bytAICurrentX = 0, bytAICurrentY = 0;
    std::uint8_t bytAIStep = 0;       ///< the next stage of the replay
    std::uint8_t bytAIPathIndex = 0;  ///< the next path step, from 1
    std::uint8_t bytAIDeadChoice = 0;

    friend bool operator==(const ActionRecord&, const ActionRecord&) = default;
};

/// Everything about the game in progress. A load starts from an empty record, so that nothing of an
/// earlier game survives. Arrays of the two sides, of people, check boxes and squares are used
/// from index 1.
struct GameRecord {
    std::string strGameName;  ///< the file's name without its folder
    std::string strGamePath;
    std::uint8_t bytScenario = 0;  ///< 1 to 12; 0 = not known

    std::array<std::string, 3> strPlayerName;
    std::array<bool, 3> blnComputer{};
    std::array<std::string_view, 3> strVictoryText;  ///< in the scenario's data
    std::array<std::uint8_t, 3> bytPeopleLeft{};
    std::uint8_t bytTurn = 0;  ///< 1 or 2; 0 until the first side of a new game has been drawn

    std::array<std::array<std::uint8_t, rowCount + 1>, columnCount + 1> bytTerrain{};
    std::array<TerrainKindRecord, terrainKindCount> TerrainKinds;
    /// The fortress, terrain code 7, is Gallowrock, which can be burned down. It is until the
    /// scenario's setup names another one.
    bool blnFortressBurns = true;
    std::array<PeopleRecord, peopleCount + 1> People;
    HouseRules house;  ///< the person's choice, which no file holds

    std::uint8_t bytCurrentX = 0, bytCurrentY = 0;  ///< the square last clicked
    std::uint8_t bytClickX = 0, bytClickY = 0;      ///< the click last given to a move or an attack

    bool blnDetailsMode = false;
    bool blnMoveMode = false;
    bool blnAttackMode = false;
    bool blnEnding = false;   ///< the program ends once the window has closed
    bool blnLeaving = false;  ///< the window closes to return to the start window

    /// The people behind chkItems(1..11) while these are shown.
    std::array<std::uint8_t, checkBoxCount + 1> bytListedPeople{};
    std::uint8_t bytListedCount = 0;
    /// The people confirmed with cmdDoneSel; entries 1 to bytSelectedCount are used.
    std::array<std::uint8_t, checkBoxCount + 1> bytSelectedPeople{};
    std::uint8_t bytSelectedCount = 0;

    // The move in progress.
    bool blnMoveUnderWay = false;  ///< a starting square has been accepted
    bool blnChoosing = false;      ///< the check boxes are shown for the starting square
    bool blnMoveFinished = false;  ///< ended with a join or a direct attack: further clicks ignored
    std::uint8_t bytStartX = 0, bytStartY = 0;
    std::uint8_t bytGroupX = 0, bytGroupY = 0;
    std::uint8_t bytMobilityLeft = 0;
    bool blnMobilitySet = false;  ///< bytMobilityLeft has been filled for this move
    std::uint8_t bytStepCost = 0;

    // The attack in progress.
    bool blnAttackerChosen = false;  ///< the next click names the target
    bool blnTargetPhase = false;
    std::uint8_t bytAnchorX = 0, bytAnchorY = 0;  ///< the attacking square
    std::uint8_t bytLastX = 0, bytLastY = 0;      ///< the square of the last accepted click
    bool blnAttacking = false;  ///< the attack is being carried out, until attack mode is left
    std::uint8_t bytAttackUnits = 0;
    std::uint8_t bytDefenseUnits = 0;
    std::uint8_t bytThreshold = 0;
    bool blnAttackWon = false;
    bool blnResetMoveButton = false;
    bool blnCasualtyPending = false;  ///< chkItems lists who may have died

    // What details mode puts back when it is left.
    std::string strRememberedStatus;
    bool blnRememberedMove = false;
    bool blnRememberedAttack = false;
    bool blnRememberedDoneSel = false;

    ActionRecord Action;
    qarn::Standstill Standstill;
    qarn::LastMove LastMove;

    friend bool operator==(const GameRecord&, const GameRecord&) = default;
};

/// The people of one square.
struct SquareList {
    std::uint8_t bytNumberofPeople = 0;  ///< how many are listed
    std::uint8_t bytTotalPeople = 0;     ///< how many of them are not transport pieces
    std::array<std::uint8_t, peopleCount + 1> bytPeopleNumbers{};  ///< used from index 1

    /// The listed entries, in roster order.
    std::span<const std::uint8_t> People() const& {
        return {bytPeopleNumbers.data() + 1, bytNumberofPeople};
    }
    std::span<const std::uint8_t> People() const&& = delete;  // it would outlive the list
};

/// Lists, in roster order, every entry that stands on the square.
SquareList LocationOfPeople(const GameRecord& record, int LocationX, int LocationY);

/// The confirmed people, bytSelectedPeople 1 to bytSelectedCount.
std::span<const std::uint8_t> Selection(const GameRecord& record);

/// Adds the strengths of the numbered people to `totals`. Throws EightBitOverflow, and leaves
/// `totals` as it was, when a sum passes 255.
void SumStrength(const GameRecord& record, std::span<const std::uint8_t> people, Strength& totals);

/// The three-character codes of the numbered people, padding included.
std::vector<std::string_view> GetPeopleCodes(const GameRecord& record,
                                             std::span<const std::uint8_t> people);

/// The names of the numbered people.
std::vector<std::string_view> GetPeopleNames(const GameRecord& record,
                                             std::span<const std::uint8_t> people);

/// True when the computer plays the side to move.
bool IsComputersTurn(const GameRecord& record);

}  // namespace qarn
