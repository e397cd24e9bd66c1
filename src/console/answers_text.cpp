#include "console/answers_text.h"

#include <ostream>

namespace qarn {
namespace {

void PrintReach(std::ostream& out, const std::vector<ReachedSquare>& reach) {
    if (reach.empty()) out << "No square can be reached.\n";
    int cost = 0;
    for (const ReachedSquare& reached : reach) {
        if (reached.cost != cost) {
            if (cost > 0) out << '\n';
            cost = reached.cost;
            out << "For " << cost << (cost == 1 ? " mobility unit:" : " mobility units:");
        }
        out << "  " << int{reached.square.X} << ' ' << int{reached.square.Y}
            << (reached.attack ? " (attack)" : "");
    }
    if (!reach.empty()) out << '\n';
}

int Percent(int numbersOfTheDie) { return 100 * numbersOfTheDie / dieSides; }

void PrintAttack(std::ostream& out, const std::optional<AttackOdds>& attack) {
    if (!attack) {
        out << "not possible.\n";
        return;
    }
    out << int{attack->attack} << " against " << int{attack->defense} << ": ";
    if (attack->burns) {
        out << "burns it down.\n";
        return;
    }
    const Odds& odds = attack->odds;
    out << "wins " << Percent(odds.win) << " %, ties " << Percent(odds.tie) << " %, loses "
        << Percent(odds.lose) << " %";
    if (odds.lossAfterWin > 0) out << "; after a win one in five costs a character";
    out << ".\n";
}

}  // namespace

void PrintAnswers(std::ostream& out, const Answers& answers) {
    if (answers.reach) PrintReach(out, *answers.reach);
    if (answers.odds) {
        out << "By the Attack command, ";
        PrintAttack(out, answers.odds->command);
        out << "By stepping in, ";
        PrintAttack(out, answers.odds->direct);
    }
}

}  // namespace qarn
