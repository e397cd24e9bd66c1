#include "window/load_game.h"

#include <filesystem>
#include <optional>

#include "core/board_display.h"
#include "core/code_page.h"
#include "core/file_store.h"
#include "core/game.h"
#include "core/game_file.h"
#include "core/turn_cycle.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "shell/user_settings.h"
#include "window/house_rules.h"
#include "window/recovery.h"
#include "window/save_game.h"
#include "window/speed.h"
#include "window/view_choices.h"

namespace qarn {
namespace {

// What a repeated load keeps of the attempt before it.
struct KnownScenario {
    std::string file = {};  // that is read
    std::string item = {};  // of the first line
    std::uint8_t bytScenario = 0;
};

void ClearGame(Game& game) {
    GameRecord empty;
    empty.strGameName = game.record.strGameName;
    empty.strGamePath = game.record.strGamePath;
    game.record = std::move(empty);
    const MenuState mnuAbout = game.controls.mnuAbout;  // its window stays as it is
    const MenuState mnuTGF = game.controls.mnuTGF;      // is not of this game
    game.controls = Controls();
    game.controls.mnuAbout = mnuAbout;
    game.controls.mnuTGF = mnuTGF;
    LoadSummarySetting(game);
    LoadHouseRules(game);
    LoadSpeed(game);
    LoadViewChoices(game);
    game.ports.random.Seed();
    ClearBoard(game);
}

std::string ReadScenarioItem(const std::string& path) {
    GameFileReader file(path);
    const std::string line = file.ReadLine("the scenario");
    file.ReadLine("the player of side 1");
    file.ReadLine("the player of side 2");
    return std::string(FirstItem(line));
}

bool IsCode(const std::string& item) { return item.size() >= 2; }

std::uint8_t ScenarioOfOlderForm(const std::string& item) {
    if (item.empty() || item[0] < '0' || item[0] > '9') {
        throw GameFileError(LoadErrorNumber::NotANumber,
                            "Line 1: the scenario should be a code or a number, but is \"" +
                                DecodeCodePage(item) + "\".");
    }
    return static_cast<std::uint8_t>(item[0] - '0');
}

void DecideScenario(Game& game, KnownScenario& known) {
    const bool repeated = known.bytScenario != 0;
    if (!repeated) {
        known.item = ReadScenarioItem(known.file);
    }
    InitTerrainKinds(game.record);
    if (IsCode(known.item)) {
        game.record.bytScenario = ScenarioNumber(known.item);
    } else {
        game.record.bytScenario = ScenarioOfOlderForm(known.item);
        if (!repeated) {
            game.ports.dialogs.Tell(
                "The file may be loaded with the incorrect scenario. If it appears that the "
                "loaded scenario is incorrect, select the Convert File menu item from the Tools "
                "menu.");
        }
        game.controls.mnuConvertFile.Visible = true;
    }
    known.bytScenario = game.record.bytScenario;
}

struct PlayerLines {
    std::string line1;
    std::string line2;
};

void ReadPositions(GameRecord& record, GameFileReader& file) {
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const std::string group = std::to_string(i);
        PeopleRecord& people = record.People[i];
        people.LocationX = file.ReadNumber("the column of group " + group, 0, columnCount);
        const int firstRow = OnBoard(people) ? 1 : 0;
        people.LocationY = file.ReadNumber("the row of group " + group, firstRow, rowCount);
        if (!OnBoard(people)) people.LocationY = 0;  // off the board a row says nothing
    }
}

void ReadLandmarks(GameRecord& record, GameFileReader& file) {
    const int N = file.ReadNumber("the number of landmark squares", 0, 255);
    for (int k = 1; k <= N; ++k) {
        const std::string landmark = "of landmark square " + std::to_string(k);
        record.bytCurrentX = file.ReadNumber("the column " + landmark, 1, columnCount);
        record.bytCurrentY = file.ReadNumber("the row " + landmark, 1, rowCount);
        record.bytTerrain[record.bytCurrentX][record.bytCurrentY] =
            file.ReadNumber("the terrain code " + landmark, 0, terrainKindCount - 1);
    }
}

PlayerLines ReadGame(GameRecord& record, const std::string& path) {
    GameFileReader file(path);
    file.ReadLine("the scenario");
    PlayerLines players;
    players.line1 = file.ReadLine("the player of side 1");
    players.line2 = file.ReadLine("the player of side 2");
    record.bytTurn = file.ReadNumber("the side to move", 0, 2);
    if (file.AtEnd()) return players;

    record.bytPeopleLeft[1] = file.ReadNumber("the number of groups left of side 1", 0, 255);
    record.bytPeopleLeft[2] = file.ReadNumber("the number of groups left of side 2", 0, 255);
    ReadPositions(record, file);
    ReadLandmarks(record, file);
    return players;
}

void SetPlayers(GameRecord& record, const PlayerLines& players) {
    if (!HasComputerFlag(players.line1)) {
        record.strPlayerName[1] = DecodeCodePage(players.line1);
        record.strPlayerName[2] = DecodeCodePage(players.line2);
        return;
    }
    const Player player1 = ParsePlayerLine(players.line1);
    const Player player2 = ParsePlayerLine(players.line2);
    record.strPlayerName = {"", player1.strPlayerName, player2.strPlayerName};
    record.blnComputer = {false, player1.blnComputer, player2.blnComputer};
}

void LoadGame(Game& game, KnownScenario& known) {
    ClearGame(game);
    NoteGameFile(game);
    DecideScenario(game, known);
    SetupScenario(game);
    ComposeCaption(game);
    SetPlayers(game.record, ReadGame(game.record, known.file));
    AppendPlayersToCaption(game);
}

// Gives true when the load is to be repeated.
bool AsksToRetry(Game& game, const GameFileError& error) {
    const Answer answer =
        game.ports.dialogs.Show({.Title = "Error " + std::to_string(error.Number()),
                                 .Text = "Invalid game format\n" + std::string(error.what()) +
                                         "\n" + game.record.strGamePath,
                                 .Offered = Buttons::RetryCancel});
    return answer == Answer::Retry;
}

// `recovery` is read in the place of the game's own file.
void LoadGameOrEnd(Game& game, const std::optional<std::string>& recovery) {
    constexpr int notOpened = 1;
    const std::string path = game.record.strGamePath;
    KnownScenario known{.file = recovery.value_or(path)};
    for (;;) {
        try {
            LoadGame(game, known);
            return;
        } catch (const GameFileError& error) {
            if (known.file != path) {
                game.ports.dialogs.Tell("The game can not be recovered. " +
                                        std::string(error.what()) + "\n" + known.file);
                known = {.file = path};
                continue;
            }
            if (!AsksToRetry(game, error)) throw ProgramEnd{notOpened};
        }
    }
}

void TellUnknownScenario(Game& game) {
    if (IsKnownScenario(game.record)) return;
    game.ports.dialogs.Tell(
        "The scenario of this file is unknown. The board stays empty, and the file will not be "
        "changed.\n" +
        game.record.strGamePath);
}

void DrawBoard(Game& game) {
    for (int X = 1; X <= columnCount; ++X) {
        for (int Y = 1; Y <= rowCount; ++Y) PaintSquare(game, X, Y);
    }
    for (int i = 1; i <= peopleCount; ++i) PlacePeople(game, i);
}

}  // namespace

void Form_Load(Game& game, const std::string& strGamePath) {
    const std::filesystem::path path = strGamePath;
    RemoveAbandonedSaves(path.parent_path().string());
    game.record.strGamePath = strGamePath;
    game.record.strGameName = path.filename();
    const bool again = game.blnOpen;
    BeginRecovery(game);
    LoadGameOrEnd(game, again ? std::nullopt : AsksToRecover(game));
    DrawBoard(game);
    game.blnOpen = true;
    StartTurns(game);
    TellHouseRules(game);
    TellUnknownScenario(game);
}

void ComposeCaption(Game& game) {
    const GameRecord& record = game.record;
    std::string& caption = game.controls.Caption;
    if (IsKnownScenario(record)) caption = NamesOfScenario(record.bytScenario).CaptionTitle;
    caption += " Tactical Game - " + record.strGameName;
}

void AppendPlayersToCaption(Game& game) {
    const GameRecord& record = game.record;
    game.controls.Caption +=
        " (" + record.strPlayerName[1] + " vs. " + record.strPlayerName[2] + ")";
}

bool IsKnownScenario(const GameRecord& record) {
    return record.bytScenario >= 1 && record.bytScenario <= scenarioCount;
}

}  // namespace qarn
