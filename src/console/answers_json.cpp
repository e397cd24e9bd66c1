#include "console/answers_json.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;

Json ReachJson(const std::vector<ReachedSquare>& reach) {
    Json list = Json::array();
    for (const ReachedSquare& reached : reach) {
        list.push_back({{"X", reached.square.X},
                        {"Y", reached.square.Y},
                        {"cost", reached.cost},
                        {"path", PathJson(reached.path)},
                        {"attack", reached.attack}});
    }
    return list;
}

// Fifths are as exact as a decimal number as they are in the rules.
double Chance(int numbersOfTheDie) { return static_cast<double>(numbersOfTheDie) / dieSides; }

Json ToJson(const std::optional<AttackOdds>& attack) {
    if (!attack) return nullptr;
    return {{"attack", attack->attack},
            {"defense", attack->defense},
            {"win", Chance(attack->odds.win)},
            {"tie", Chance(attack->odds.tie)},
            {"lose", Chance(attack->odds.lose)},
            {"lossAfterWin", Chance(attack->odds.lossAfterWin)},
            {"burns", attack->burns}};
}

std::string_view WordOf(PlanKind kind) {
    if (kind == PlanKind::March) return "march";
    return kind == PlanKind::Attack ? "attack" : "pass";
}

Path WholeWay(const Plan& plan) {
    Path way;
    if (plan.kind == PlanKind::March) way.push_back(plan.start);
    for (const Square square : plan.path) way.push_back(square);
    return way;
}

Json ToJson(const Hint& hint) {
    const Plan& plan = hint.plan;
    const bool passes = plan.kind == PlanKind::Pass;
    return {{"kind", WordOf(plan.kind)},
            {"from", passes ? Json(nullptr) : SquareJson(plan.start)},
            {"people", PeopleJson(plan.people)},
            {"path", PathJson(WholeWay(plan))},
            {"target", hint.attack ? SquareJson(hint.attack->to) : Json(nullptr)},
            {"odds", hint.attack ? ToJson(OddsOfHint(*hint.attack)) : Json(nullptr)},
            {"sentence", hint.sentence}};
}

}  // namespace

Json SquareJson(Square square) { return Json::array({square.X, square.Y}); }

Json PathJson(const Path& path) {
    Json list = Json::array();
    for (const Square square : path) list.push_back(SquareJson(square));
    return list;
}

Json PeopleJson(PeopleSet people) {
    Json list = Json::array();
    for (const std::uint8_t i : people) list.push_back(i);
    return list;
}

void AddAnswers(Json& object, const Answers& answers) {
    if (answers.reach) object["reach"] = ReachJson(*answers.reach);
    if (answers.odds) {
        object["odds"] = {{"command", ToJson(answers.odds->command)},
                          {"direct", ToJson(answers.odds->direct)}};
    }
    if (answers.journal) object["journal"] = *answers.journal;
    object["hint"] = answers.hint ? ToJson(*answers.hint) : Json(nullptr);
}

}  // namespace qarn
