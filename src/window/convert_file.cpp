#include <optional>
#include <system_error>

#include "core/file_store.h"
#include "core/game.h"
#include "core/player_error.h"
#include "scenarios/catalogue.h"
#include "window/load_game.h"
#include "window/menu_commands.h"
#include "window/save_game.h"

namespace qarn {
namespace {

bool AsksWhetherRightScenario(Game& game) {
    return game.ports.dialogs.Show({.Title = "Convert To Right Scenario",
                                    .Text = "Did this convert to the right scenario?",
                                    .Offered = Buttons::YesNo}) == Answer::Yes;
}

// Gives false when the game could not be saved, and is then as it was.
bool ConvertToNext(Game& game) {
    GameRecord& record = game.record;
    const std::uint8_t scenario = record.bytScenario;
    record.bytScenario = scenario >= scenarioCount ? 1 : static_cast<std::uint8_t>(scenario + 1);
    if (!TrySaveGame(game)) {
        record.bytScenario = scenario;
        return false;
    }
    Form_Load(game, record.strGamePath);
    return true;
}

std::optional<std::string> ContentsOf(const std::string& path) {
    try {
        return ReadWholeFile(path);
    } catch (const std::system_error&) {
        return std::nullopt;
    }
}

// A front end without anybody to answer would go round for ever.
[[noreturn]] void GiveUp(Game& game, const std::optional<std::string>& file) {
    std::string text = "The file has not been converted, as nobody has answered.";
    try {
        if (file) ReplaceFile(game.record.strGamePath, *file);
        NoteGameFile(game);
    } catch (const std::system_error& error) {
        text += " It can not be put back either: " + error.code().message() + ".";
    }
    throw NobodyAnswers(text + "\n" + game.record.strGamePath);
}

}  // namespace

void mnuConvertFile_Click(Game& game) {
    if (!IsKnownScenario(game.record)) return;
    const std::optional<std::string> file = ContentsOf(game.record.strGamePath);
    for (int asked = 1; ConvertToNext(game) && !AsksWhetherRightScenario(game); ++asked) {
        const bool wholeRound = asked >= scenarioCount;
        if (wholeRound && game.ports.dialogs.NobodyAnswered()) GiveUp(game, file);
    }
}

}  // namespace qarn
