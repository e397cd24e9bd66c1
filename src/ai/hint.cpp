#include "ai/hint.h"

#include "core/blanks.h"
#include "core/enumerate.h"
#include "core/game.h"
#include "core/position.h"
#include "rules/play_turn.h"
#include "rules/questions/odds.h"
#include "rules/questions/turn.h"
#include "window/hint_mark.h"

namespace qarn {
namespace {

std::string Text(Square square) {
    return "(" + std::to_string(square.X) + ", " + std::to_string(square.Y) + ")";
}

std::string CodesOf(const GameRecord& record, PeopleSet people) {
    std::vector<std::string_view> codes;
    for (const std::uint8_t i : people) codes.push_back(WithoutBlanks(record.People[i].Code));
    return Enumerate(codes);
}

std::string OddsText(const Attacked& attack) {
    if (!attack.roll) return "burns it down";
    const Odds odds = OddsOf(attack.attack, attack.defense);
    const std::string of = " of " + std::to_string(dieSides);
    std::string text = "wins " + std::to_string(odds.win) + of;
    if (odds.tie > 0) text += ", ties " + std::to_string(odds.tie) + of;
    return text;
}

std::string TextOfMarch(const GameRecord& record, const Hint& hint) {
    const Plan& plan = hint.plan;
    const Square to = plan.path.back();
    const std::string way =
        CodesOf(record, plan.people) + " from " + Text(plan.start) + " to " + Text(to);
    if (hint.attack) return way + ", attack: " + OddsText(*hint.attack);
    const Position position = PositionOf(record);
    const PeopleSet friends = CharactersOf(position, PeopleOn(position, to)) - plan.people;
    return friends.Empty() ? way : way + ", joining " + CodesOf(record, friends);
}

std::string TextOf(const GameRecord& record, const Hint& hint) {
    const Plan& plan = hint.plan;
    switch (plan.kind) {
        case PlanKind::March:
            return TextOfMarch(record, hint);
        case PlanKind::Attack:
            return "Attack command, " + Text(plan.start) + " against " + Text(plan.target) + ": " +
                   OddsText(*hint.attack);
        case PlanKind::Pass:
            break;
    }
    return "pass, there is nothing better";
}

Path WayOf(const Plan& plan) {
    Path way;
    if (plan.kind == PlanKind::Pass) return way;
    way.push_back(plan.start);
    for (const Square square : plan.path) way.push_back(square);
    if (plan.kind == PlanKind::Attack) way.push_back(plan.target);
    return way;
}

std::string CaptionOf(const Hint& hint) {
    if (!hint.attack) return {};
    if (!hint.attack->roll) return "burns";
    const Odds odds = OddsOf(hint.attack->attack, hint.attack->defense);
    return std::to_string(odds.win) + " of " + std::to_string(dieSides);
}

}  // namespace

Hint HintOf(const GameRecord& record, const Plan& plan) {
    Position position = PositionOf(record);
    Hint hint{.plan = AllowedPart(position, plan), .attack = {}, .sentence = {}};
    hint.attack = PlayTurn(position, hint.plan, {}).attack;
    hint.sentence = "Hint: " + TextOf(record, hint) + ".";
    return hint;
}

Choice ChoiceOfHint(const Game& game) { return {"warlord", PositionOf(game.record)}; }

Hint ShowHint(Game& game, const std::optional<Plan>& plan) {
    const Hint hint = HintOf(game.record, plan.value_or(Plan{}));
    PutHint(game, {.Way = WayOf(hint.plan), .Caption = CaptionOf(hint)}, hint.sentence);
    return hint;
}

}  // namespace qarn
