#include "console/text_view.h"

#include <array>
#include <ostream>

#include "core/captions.h"
#include "rules/terrain.h"
#include "window/buttons.h"
#include "window/opponents_turn.h"

namespace qarn {
namespace {

constexpr std::array<char, terrainKindCount> terrainSigns{'.', '^', '~', '=', ':',
                                                          '%', '*', '#', '+'};

std::string Rgb(Color color) {
    return std::to_string(color.rgb >> 16) + ";" + std::to_string(color.rgb >> 8 & 0xFF) + ";" +
           std::to_string(color.rgb & 0xFF);
}

std::string Colored(const SquareLabel& square, const std::string& text) {
    return "\x1b[38;2;" + Rgb(square.ForeColor) + ";48;2;" + Rgb(square.BackColor) + "m" + text +
           "\x1b[0m";
}

// A square is four characters wide. Its first line holds the terrain's sign and the first code, its
// second line the second code, behind a + when there are more.
std::string LineOfSquare(const Game& game, int X, int Y, int line) {
    const SquareList list = LocationOfPeople(game.record, X, Y);
    const auto codes = GetPeopleCodes(game.record, list.People());
    const std::size_t shown = static_cast<std::size_t>(line);
    const std::string code(shown < codes.size() ? codes[shown] : "   ");
    const std::uint8_t T =
        game.record.bytTerrain[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)];
    if (line == 0) return terrainSigns[T] + code;
    return (codes.size() > 2 ? "+" : " ") + code;
}

std::string Padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), ' ') + digits;
}

void PrintRow(std::ostream& out, const Game& game, int Y, int line, bool colors) {
    out << (line == 0 ? Padded(Y, 2) : "  ") << ' ';
    for (int X = 1; X <= columnCount; ++X) {
        const SquareLabel& square =
            game.controls.lbl[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)];
        const std::string text = LineOfSquare(game, X, Y, line);
        out << (colors ? Colored(square, text) : text);
    }
    out << '\n';
}

void PrintCheckBoxes(std::ostream& out, const Controls& controls) {
    bool any = false;
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        const CheckBox& box = controls.chkItems[i];
        if (!box.Visible) continue;
        out << (any ? "  " : "Items: ") << i << (box.Value ? " [x] " : " [ ] ") << box.Caption;
        any = true;
    }
    if (any) out << '\n';
}

void PrintButtons(std::ostream& out, const Game& game) {
    out << "Buttons:";
    for (const WindowButton& one : WindowButtons()) {
        const Button& button = game.controls.*one.State;
        if (!button.Visible || !button.Enabled || !TakesPress(game, one)) continue;
        out << "  " << one.Name << " (" << PlainCaption(button.Caption) << ")";
    }
    out << '\n';
}

}  // namespace

void PrintBoard(std::ostream& out, const Game& game, bool colors) {
    out << game.controls.Caption << "\n   ";
    for (int X = 1; X <= columnCount; ++X) out << Padded(X, 3) << ' ';
    out << '\n';
    for (int Y = 1; Y <= rowCount; ++Y) {
        PrintRow(out, game, Y, 0, colors);
        PrintRow(out, game, Y, 1, colors);
    }
}

void PrintStatus(std::ostream& out, const Game& game) {
    const Controls& controls = game.controls;
    if (game.record.blnDetailsMode) out << controls.lblDetailMore.Caption << '\n';
    if (controls.fraQuickDetails.Visible) out << controls.lblSummary.Caption << '\n';
    if (controls.lblTerrainDescription.Visible) {
        out << controls.lblTerrainDescription.Caption << '\n';
    }
    PrintCheckBoxes(out, controls);
    PrintButtons(out, game);
    out << PlainText(controls.lblStatus.Caption) << '\n';
}

void PrintHelp(std::ostream& out) {
    out << R"(Commands
  new PATH CODE NAME1 KIND1 NAME2 KIND2   a new game; KIND is human or computer
  open PATH        open a saved game
  press NAME       press cmdMove, cmdAttack, cmdDoneSel, cmdSquareDetails, cmdSeeTerDet(0..8)
  click X Y        click the square in column X, row Y
  tick I, untick I choose items in the list
  timer [N]        let the computer play one step (N steps)
  menu NAME        mnuSave, mnuPeopleDetails, mnuSummary, mnuItemDetails, mnuHelp, ...
  saveas PATH      save under another name
  reach            which squares the group that moves can still reach
  reach X Y        which squares the whole stack on that square could reach
  odds X1 Y1 X2 Y2 what an attack from the first square on the second would bring
  hint             what the strongest opponent would do in this turn
  answer WORD...   answers for the next boxes: yes, no, retry, cancel
  random R...      numbers from 0 to below 1 for the next draws
  seed N           the seed of the numbers after these
  level NAME [SIDE] who plays the computer's sides: classic, scout, captain or warlord
  house NAME on|off  a house rule: ownGroups, oneTurnForBurning
  state            show the board again
  help             show this again
  close            save and end          quit   end without saving
A move:    press cmdMove, click its square, untick who stays, press cmdDoneSel, click square by
           square, press cmdMove.
An attack: press cmdAttack, click your square, click the enemy's square.
Terrain:   . plain  ^ mountain  ~ ocean  = stream  : sand  % swamp  * forest  # fortress  + abbey
           A + before the second code of a square: more groups stand there.
)";
}

}  // namespace qarn
