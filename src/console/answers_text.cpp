#include "console/answers_text.h"

#include <ostream>

#include "console/printable.h"

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

void PrintAttack(std::ostream& out, const std::optional<AttackOdds>& attack) {
    out << (attack ? TextOf(*attack) : "not possible") << ".\n";
}

}  // namespace

void PrintAnswers(std::ostream& out, const Answers& answers) {
    if (answers.journal) {
        for (const std::string& line : *answers.journal) out << Printable(line) << '\n';
    }
    if (answers.reach) PrintReach(out, *answers.reach);
    if (answers.odds) {
        out << "By the Attack command, ";
        PrintAttack(out, answers.odds->command);
        out << "By stepping in, ";
        PrintAttack(out, answers.odds->direct);
    }
}

}  // namespace qarn
