#include "console/text_view.h"

#include <array>
#include <optional>
#include <ostream>

#include "console/printable.h"
#include "core/captions.h"
#include "play/side_colors.h"
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

std::string Colored(Color text, Color ground, const std::string& shown) {
    return "\x1b[38;2;" + Rgb(text) + ";48;2;" + Rgb(ground) + "m" + shown + "\x1b[0m";
}

// One line of a square is four characters wide: a mark and a code.
struct CellLine {
    char mark;
    std::string code;
    std::optional<std::uint8_t> side;  // whose code it is, while sides are shown
};

// The first of those who stand on a square decides whose it is; capitals are side 1's.
char MarkOfSide(const GameRecord& record, const SquareList& list, bool more) {
    if (list.bytTotalPeople == 0) return more ? '+' : ' ';
    const bool first = record.People[list.bytPeopleNumbers[1]].Side == 1;
    if (more) return first ? 'Y' : 'y';
    return first ? 'X' : 'x';
}

// The first line holds the terrain's sign and the first code, the second line the second code,
// behind a mark when there are more.
CellLine LineOfSquare(const Game& game, int X, int Y, std::size_t line) {
    const GameRecord& record = game.record;
    const SquareList list = LocationOfPeople(record, X, Y);
    const bool more = list.bytNumberofPeople > 2;
    const std::uint8_t T =
        record.bytTerrain[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)];
    CellLine cell{more ? '+' : ' ', "   ", {}};
    if (game.view.sides) cell.mark = MarkOfSide(record, list, more);
    if (line == 0) cell.mark = terrainSigns[T];
    if (line < list.People().size()) {
        const PeopleRecord& people = record.People[list.People()[line]];
        cell.code = people.Code;
        if (game.view.sides) cell.side = people.Side;
    }
    return cell;
}

std::string Colored(const SquareLabel& square, const CellLine& cell) {
    const auto onGround = [&](const std::string& text) {
        return Colored(square.ForeColor, square.BackColor, text);
    };
    if (!cell.side) return onGround(cell.mark + cell.code);
    const SideColors colors = ColorsOfSide(*cell.side);
    return onGround({cell.mark}) + Colored(colors.text, colors.fill, cell.code);
}

std::string Padded(int number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - digits.size(), ' ') + digits;
}

void PrintRow(std::ostream& out, const Game& game, int Y, std::size_t line, bool colors) {
    out << (line == 0 ? Padded(Y, 2) : "  ") << ' ';
    for (int X = 1; X <= columnCount; ++X) {
        const SquareLabel& square =
            game.controls.lbl[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)];
        const CellLine cell = LineOfSquare(game, X, Y, line);
        out << (colors ? Colored(square, cell) : cell.mark + cell.code);
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
    out << Printable(game.controls.Caption) << "\n   ";
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
    out << Printable(PlainText(controls.lblStatus.Caption)) << '\n';
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
  journal          the story of the game so far, turn by turn, and the luck of both sides
  hint             what the strongest opponent would do in this turn
  undo             take the last click, press or tick of this turn back
  cancel           take the whole move or attack back that has begun
  pass             pass the turn
  resign           give the game up
  draw             offer a draw
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
Sides:     menu mnuSides tells them apart in colour, and by an X before the second code of a square of
           the goodbeasts, an x of the badbeasts; Y and y where more groups stand there.
)";
}

}  // namespace qarn
