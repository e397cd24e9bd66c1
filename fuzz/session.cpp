// Any bytes as a whole session: a scenario, where everybody stands, and commands, each made of a
// few bytes so that most of them can be carried out. After each the game must be sound.

#include <array>
#include <span>
#include <string>

#include "core/opponents.h"
#include "core/player_error.h"
#include "fuzzed_game.h"
#include "rules/questions/casualties.h"
#include "scenarios/catalogue.h"
#include "target.h"
#include "turn_check.h"
#include "window/menu_commands.h"
#include "window/opponents_turn.h"
#include "window/save_game.h"

namespace qarn {
namespace {

constexpr int mostCommands = 200;

/// The bytes of the input, one after the other; zeros behind its end.
class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

    bool AtEnd() const { return rest_.empty(); }
    int Below(int bound) {
        if (AtEnd()) return 0;
        const int byte = rest_.front();
        rest_ = rest_.subspan(1);
        return byte % bound;
    }
    bool Flip() { return Below(2) == 1; }
    template <typename List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }

private:
    std::span<const std::uint8_t> rest_;
};

bool CountsAgain(const Happening& happening) {
    const auto* attacked = std::get_if<Attacked>(&happening);
    return (attacked != nullptr && attacked->roll) || std::holds_alternative<Lost>(happening);
}

class FuzzedSession {
public:
    explicit FuzzedSession(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    void Play() {
        Do({"seed", std::to_string(bytes_.Below(256))});
        Do({"new", path_, std::string(NamesOfScenario(1 + bytes_.Below(scenarioCount)).Code), "Red",
            Kind(), "Blue", Kind()});
        crowded_ = bytes_.Flip();
        if (crowded_) BringTogether();
        for (int i = 0; i < mostCommands && !bytes_.AtEnd() && !Current().blnEnded; ++i) DoNext();
    }

private:
    const Game& Current() const { return session_.CurrentGame(); }
    std::string Kind() { return bytes_.Flip() ? "computer" : "human"; }

    // Puts everybody close together, so that they meet soon.
    void BringTogether() {
        GameRecord record = Current().record;
        for (std::size_t i = 1; i <= peopleCount; ++i) {
            const int place = bytes_.Below(256);
            record.People[i].LocationX = static_cast<std::uint8_t>(7 + place % 5);
            record.People[i].LocationY = static_cast<std::uint8_t>(4 + place / 5 % 5);
        }
        WriteFile(path_, GameText(record));
        Do({"open", path_});
    }

    void DoNext() {
        switch (bytes_.Below(16)) {
            case 0:
            case 1:
                return Press();
            case 2:
            case 3:
                return Click(NextTo(GroupInMove()));
            case 4:
                return Click(SquareOf(Current().record.People[PersonNumber()]));
            case 5:
                return Click(AnySquare());
            case 6:
            case 7:
                return Do({bytes_.Flip() ? "untick" : "tick",
                           std::to_string(1 + bytes_.Below(checkBoxCount))});
            case 8:
            case 9:
                return PassTime();
            case 10:
                return Do({"answer", bytes_.OneOf(std::array{"yes", "yes", "no", "cancel"})});
            case 11:
                return Do({"random", "0." + std::to_string(bytes_.Below(10))});
            case 12:
                return TakeBackOrPass();
            case 13:
                return ChooseMenu();
            case 14:
                return Ask();
            default:
                return Arrange();
        }
    }

    void Press() {
        Do({"press", bytes_.OneOf(std::array{"cmdMove", "cmdAttack", "cmdDoneSel", "cmdDoneSel",
                                             "cmdSquareDetails", "cmdSeeTerDet(7)"})});
    }

    Square GroupInMove() const {
        const GameRecord& record = Current().record;
        return record.blnMoveUnderWay ? Square{record.bytGroupX, record.bytGroupY}
                                      : Square{record.bytCurrentX, record.bytCurrentY};
    }

    Square NextTo(Square square) {
        static constexpr std::array<std::array<int, 2>, 4> ways{{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
        const auto& way = bytes_.OneOf(ways);
        return {static_cast<std::uint8_t>(square.X + way[0]),
                static_cast<std::uint8_t>(square.Y + way[1])};
    }

    std::size_t PersonNumber() { return static_cast<std::size_t>(1 + bytes_.Below(peopleCount)); }

    Square AnySquare() {
        const int number = bytes_.Below(columnCount * rowCount);
        return {static_cast<std::uint8_t>(1 + number % columnCount),
                static_cast<std::uint8_t>(1 + number / columnCount)};
    }

    void Click(Square square) { Do({"click", std::to_string(square.X), std::to_string(square.Y)}); }

    // One event a command, so that each is looked at.
    void PassTime() {
        for (int ticks = bytes_.Below(20); ticks >= 0 && !Current().blnEnded; --ticks) {
            Do({"timer"});
        }
    }

    void TakeBackOrPass() {
        turn_.PassOver();
        Do({bytes_.OneOf(std::array{"undo", "undo", "cancel", "pass", "resign", "draw"})});
    }

    // Hints and the strongest opponents take their time, and are left to the console's commands.
    void ChooseMenu() {
        const MenuCommand& command = bytes_.OneOf(MenuCommands());
        turn_.PassOver();
        if (command.Name == "mnuHint" || command.Submenu == "&Opponent") return;
        Do({"menu", std::string(command.Name)});
    }

    void Ask() {
        const Square from = SquareOf(Current().record.People[PersonNumber()]);
        const Square to = NextTo(from);
        const auto Number = [](std::uint8_t number) { return std::to_string(number); };
        Do({"reach"});
        Do({"reach", Number(from.X), Number(from.Y)});
        Do({"odds", Number(from.X), Number(from.Y), Number(to.X), Number(to.Y)});
        Do({"journal"});
    }

    void Arrange() {
        switch (bytes_.Below(4)) {
            case 0:
                turn_.PassOver();
                return Do({"house", bytes_.Flip() ? "ownGroups" : "oneTurnForBurning",
                           bytes_.Flip() ? "on" : "off"});
            case 1:
                // Whoever looks ahead takes long where everybody stands together.
                return Do({"level", bytes_.Flip() && !crowded_ ? "scout" : "classic"});
            case 2:
                return Do({"open", path_});
            default:
                return Do({"saveas", desktop_ / (bytes_.Flip() ? "other.tgf" : "nowhere/x.tgf")});
        }
    }

    void Do(const Session::Words& words) {
        const KeptGame before(Current().record);
        Execute(session_, words);
        const Happenings happenings = session_.TakeHappenings();
        session_.TakeAnswers();
        const Game& game = Current();
        if (words[0] == "new" || words[0] == "open") return turn_.Begin(game);
        if (std::any_of(happenings.begin(), happenings.end(), CountsAgain)) {
            Require(game.record.bytPeopleLeft == PeopleLeft(PositionOf(game.record)),
                    "after a roll as many are left as a recount finds");
        }
        turn_.Follow(game, happenings);
        if (KeptGame(game.record) != before) RequireSameAfterReload(game, desktop_);
    }

    Bytes bytes_;
    FuzzedDesktop desktop_;
    std::string path_ = desktop_ / "game.tgf";
    Session session_{desktop_.Ports()};
    TurnCheck turn_;
    bool crowded_ = false;
};

}  // namespace
}  // namespace qarn

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    qarn::FuzzedSession({data, size}).Play();
    return 0;
}
