#include "window/save_game.h"

#include <exception>
#include <optional>
#include <system_error>

#include "core/file_store.h"
#include "core/game.h"
#include "core/game_file.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"
#include "shell/about.h"
#include "window/load_game.h"
#include "window/recovery.h"

namespace qarn {
namespace {

std::string Reason(const Game& game, const SaveError& error) {
    return "The game can not be saved. " + std::string(error.what()) + "\n" +
           game.record.strGamePath;
}

class ChangedElsewhere : public SaveError {
public:
    ChangedElsewhere() : SaveError("It was changed by another program.") {}
};

bool IsChangedElsewhere(const Game& game) {
    const std::string& path = game.record.strGamePath;
    const std::optional<FileMark>& seen = game.seenFile.mark;
    const std::optional<FileMark> found = MarkOf(path);
    return game.seenFile.path == path && seen && found && found != seen;
}

bool AgreesToReplace(Game& game) {
    return game.ports.dialogs.Show({.Title = "Save",
                                    .Text = game.record.strGameName +
                                            " was changed by another program.\nDo you want to "
                                            "replace it by this game?\n" +
                                            game.record.strGamePath,
                                    .Offered = Buttons::YesNo,
                                    .DeclinedByDefault = true,
                                    .ForThePerson = true}) == Answer::Yes;
}

void Save(Game& game, bool (*mayReplaceChanged)(Game&)) {
    if (!IsKnownScenario(game.record)) return;
    const std::string text = GameText(game.record);
    bool mayReplace = false;
    try {
        ReplaceFile(game.record.strGamePath, text, [&] {
            return mayReplace = !IsChangedElsewhere(game) || mayReplaceChanged(game);
        });
        if (!mayReplace) throw ChangedElsewhere();
    } catch (const std::system_error& error) {
        // When only the folder could not be flushed, the new file is there already.
        if (mayReplace) NoteGameFile(game);
        throw SaveError(error.code().message() + ".");
    }
    NoteGameFile(game);
    game.afterSave();
}

bool SavesOrLeavesWithoutSaving(Game& game) {
    try {
        SaveGame(game);
        ForgetRecovery(game, game.record.strGamePath);
        return true;
    } catch (const SaveError& error) {
        const Answer answer = game.ports.dialogs.Show(
            {.Title = "Save",
             .Text = Reason(game, error) + "\nDo you want to leave without saving?",
             .Offered = Buttons::YesNo,
             .DeclinedByDefault = true});
        return answer == Answer::Yes;
    }
}

}  // namespace

std::string GameText(const GameRecord& record) {
    GameFileWriter file;
    std::string code;
    ScenarioCode(record.bytScenario, code);
    file.WriteText(code);
    for (std::size_t side = 1; side <= 2; ++side) {
        file.WritePlayer({record.strPlayerName[side], record.blnComputer[side]});
    }
    file.WriteNumber(record.bytTurn);
    file.WriteNumber(record.bytPeopleLeft[1]);
    file.WriteNumber(record.bytPeopleLeft[2]);
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        file.WriteNumber(record.People[i].LocationX);
        file.WriteNumber(record.People[i].LocationY);
    }
    const LandmarkSquares& landmarks = DataOfScenario(record.bytScenario).landmarkSquares;
    file.WriteNumber(static_cast<int>(landmarks.size()));
    for (const Square& square : landmarks) {
        file.WriteNumber(square.X);
        file.WriteNumber(square.Y);
        file.WriteNumber(record.bytTerrain[square.X][square.Y]);
    }
    return file.Text();
}

void NoteGameFile(Game& game) {
    game.seenFile = {game.record.strGamePath, MarkOf(game.record.strGamePath)};
}

void SaveGame(Game& game) { Save(game, AgreesToReplace); }

bool TrySaveGame(Game& game) {
    try {
        SaveGame(game);
        return true;
    } catch (const ChangedElsewhere&) {
        return false;  // as the person has just decided
    } catch (const SaveError& error) {
        game.ports.dialogs.Show({.Title = "Save", .Text = Reason(game, error)});
        return false;
    }
}

void Form_Unload(Game& game) {
    GameRecord& record = game.record;
    record.blnEnding = !record.blnLeaving;
    if (!SavesOrLeavesWithoutSaving(game)) {
        record.blnEnding = false;
        record.blnLeaving = false;
        return;
    }
    if (record.blnEnding) throw ProgramEnd{};
    record.blnLeaving = false;
    game.controls.tmrAI.Enabled = false;
    frmAbout_Unload(game);  // it closes together with this window
    game.blnOpen = false;
}

void CloseWithoutBoxes(Game& game) {
    constexpr int notSaved = 1;
    try {
        Save(game, [](Game&) { return false; });
        ForgetRecovery(game, game.record.strGamePath);
    } catch (const std::exception&) {
        throw ProgramEnd{notSaved};
    }
    throw ProgramEnd{};
}

}  // namespace qarn
