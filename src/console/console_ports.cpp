#include "console/console_ports.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qarn {
namespace {

constexpr std::array<std::pair<std::string_view, Answer>, 5> answerWords{{
    {"ok", Answer::OK},
    {"yes", Answer::Yes},
    {"no", Answer::No},
    {"retry", Answer::Retry},
    {"cancel", Answer::Cancel},
}};

Answer Declining(Buttons offered) {
    return offered == Buttons::RetryCancel ? Answer::Cancel : Answer::No;
}

}  // namespace

std::string_view WordOf(Answer answer) {
    return std::find_if(answerWords.begin(), answerWords.end(),
                        [&](const auto& entry) { return entry.second == answer; })
        ->first;
}

std::optional<Answer> AnswerOf(std::string_view word) {
    const auto found = std::find_if(answerWords.begin(), answerWords.end(),
                                    [&](const auto& entry) { return entry.first == word; });
    if (found == answerWords.end()) return std::nullopt;
    return found->second;
}

bool Offers(Buttons offered, Answer answer) {
    switch (offered) {
        case Buttons::YesNo:
            return answer == Answer::Yes || answer == Answer::No;
        case Buttons::RetryCancel:
            return answer == Answer::Retry || answer == Answer::Cancel;
        default:
            return answer == Answer::OK;
    }
}

Answer ConsoleDialogs::Ask(const MessageBox& box) {
    const Answer answer = Choose(box);
    shown_.push_back({box, answer});
    return answer;
}

void ConsoleDialogs::ShowAnswered(const MessageBox& box, Answer answer) {
    if (tellPerson_) tellPerson_(box, answer);
    if (noteAnswered_) noteAnswered_(box, answer);
    shown_.push_back({box, answer});
}

Answer ConsoleDialogs::Choose(const MessageBox& box) {
    const bool queued = box.Offered != Buttons::OK && !answers_.empty();
    std::optional<Answer> answer;
    if (queued) {
        answer = answers_.front();
        answers_.pop_front();
    } else if (askPerson_) {
        answer = askPerson_(box);
    }
    if (box.Offered == Buttons::OK) return Answer::OK;
    NoteNobodyAnswered(!answer);
    return answer && Offers(box.Offered, *answer) ? *answer : Declining(box.Offered);
}

std::string ConsoleDialogs::AskSaveFileName(const std::string&) {
    return std::exchange(saveFileName_, {});
}

// Games are opened by the command of that name.
std::string ConsoleDialogs::AskOpenFileName(const std::string&) { return {}; }

std::string ConsoleDialogs::InputPrompt(const std::string&, const std::string&,
                                        const std::string&) {
    return {};
}

void ConsoleRandomNumbers::Seed() {
    if (seed_) {
        generator_.Seed(*seed_);
    } else {
        generator_.SeedFromClock();
    }
}

double ConsoleRandomNumbers::Next() {
    if (numbers_.empty()) return generator_.Next();
    const double number = numbers_.front();
    numbers_.pop_front();
    return number;
}

void ConsoleRandomNumbers::SetSeed(std::uint64_t seed) {
    seed_ = seed;
    generator_.Seed(seed);
}

}  // namespace qarn
