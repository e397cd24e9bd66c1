#include "console/happenings_json.h"

#include "console/answers_json.h"

namespace qarn {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const std::optional<int>& roll) { return roll ? Json(*roll) : Json(nullptr); }

std::string_view WordOf(AttackResult result) {
    if (result == AttackResult::Won) return "won";
    return result == AttackResult::Tie ? "tie" : "lost";
}

Json ToJson(const Moved& moved) {
    return {{"what", "move"},
            {"side", moved.side},
            {"people", PeopleJson(moved.people)},
            {"path", PathJson(moved.path)}};
}

Json ToJson(const Attacked& attack) {
    return {{"what", "attack"},
            {"side", attack.side},
            {"from", SquareJson(attack.from)},
            {"to", SquareJson(attack.to)},
            {"direct", attack.direct},
            {"attack", attack.attack},
            {"defense", attack.defense},
            {"threshold", attack.threshold},
            {"roll", ToJson(attack.roll)},
            {"result", WordOf(attack.result)},
            {"secondRoll", ToJson(attack.secondRoll)}};
}

Json ToJson(const Lost& lost) {
    return {{"what", "lost"},
            {"people", PeopleJson(lost.people)},
            {"side", lost.side},
            {"at", SquareJson(lost.at)}};
}

Json ToJson(const Burned& burned) {
    return {{"what", "burned"}, {"at", SquareJson(burned.at)}, {"terrain", burned.terrain}};
}

Json ToJson(const Returned& returned) {
    return {{"what", "return"},
            {"people", PeopleJson(returned.people)},
            {"at", SquareJson(returned.at)}};
}

Json ToJson(const TurnCame& turn) { return {{"what", "turn"}, {"side", turn.side}}; }

Json ToJson(const Ended& end) { return {{"what", "end"}, {"winner", end.winner}}; }

}  // namespace

nlohmann::ordered_json HappeningsJson(const Happenings& happenings) {
    Json list = Json::array();
    for (const Happening& happening : happenings) {
        list.push_back(std::visit([](const auto& one) { return ToJson(one); }, happening));
    }
    return list;
}

}  // namespace qarn
