#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/ports.h"
#include "core/random_numbers.h"

namespace qarn {

/// A box that was shown, and what was answered.
struct ShownBox {
    MessageBox box;
    Answer answer;
};

/// The word for an answer: "ok", "yes", "no", "retry" or "cancel".
std::string_view WordOf(Answer answer);

/// The answer with this word; none for another word.
std::optional<Answer> AnswerOf(std::string_view word);

/// True when a box with these buttons can be answered so.
bool Offers(Buttons offered, Answer answer);

/// Message boxes that take their answers from a queue and then, where one is set, from a person.
/// Without either a choice is declined.
class ConsoleDialogs : public Dialogs {
public:
    using AskPerson = std::function<std::optional<Answer>(const MessageBox&)>;
    using TellPerson = std::function<void(const MessageBox&, Answer)>;

    std::string AskSaveFileName(const std::string& path) override;
    std::string AskOpenFileName(const std::string& folder) override;
    std::string InputPrompt(const std::string& text, const std::string& title,
                            const std::string& prefilled) override;

    void QueueAnswer(Answer answer) { answers_.push_back(answer); }
    /// What the next AskSaveFileName gives.
    void SetSaveFileName(const std::string& path) { saveFileName_ = path; }
    /// Shows every box to a person; the function gives nothing when nobody answers.
    void SetAskPerson(AskPerson ask) { askPerson_ = std::move(ask); }
    /// Shows a person every box that an opponent has answered itself.
    void SetTellPerson(TellPerson tell) { tellPerson_ = std::move(tell); }

    /// Notes the same boxes for the session.
    void SetNoteAnswered(TellPerson note) { noteAnswered_ = std::move(note); }

    /// The boxes shown since the last call.
    std::vector<ShownBox> TakeShown() { return std::exchange(shown_, {}); }

private:
    Answer Ask(const MessageBox& box) override;
    void ShowAnswered(const MessageBox& box, Answer answer) override;
    Answer Choose(const MessageBox& box);

    std::deque<Answer> answers_;
    std::string saveFileName_;
    AskPerson askPerson_;
    TellPerson tellPerson_;
    TellPerson noteAnswered_;
    std::vector<ShownBox> shown_;
};

/// Random numbers from a queue, then from a generator that may have been given a seed.
class ConsoleRandomNumbers : public RandomNumbers {
public:
    void Seed() override;
    double Next() override;

    void QueueNumber(double number) { numbers_.push_back(number); }
    /// Seeds the generator now and at every load that follows, in place of the clock.
    void SetSeed(std::uint64_t seed);

private:
    std::deque<double> numbers_;
    std::optional<std::uint64_t> seed_;
    UniformGenerator generator_;
};

/// Notes the help topics that were opened.
class ConsoleHelp : public HelpViewer {
public:
    void ShowHelp(const std::string& strTopic) override { topics_.push_back(strTopic); }

    /// The topics opened since the last call.
    std::vector<std::string> TakeTopics() { return std::exchange(topics_, {}); }

private:
    std::vector<std::string> topics_;
};

}  // namespace qarn
