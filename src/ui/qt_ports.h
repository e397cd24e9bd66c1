#pragma once

#include <QWidget>
#include <functional>

#include "core/ports.h"
#include "core/random_numbers.h"

namespace qarn {

/// Boxes and file dialogs over one window.
class QtDialogs : public Dialogs {
public:
    using TellAnswered = std::function<void(const MessageBox&, Answer)>;

    /// `beforeBox` runs before each box, so that what the box comments on is on screen. Where
    /// opponents play, `tellAnswered` gets each box that one of them has answered.
    QtDialogs(QWidget* window, std::function<void()> beforeBox, TellAnswered tellAnswered = {});

    std::string AskSaveFileName(const std::string& path) override;
    std::string AskOpenFileName(const std::string& folder) override;
    std::string InputPrompt(const std::string& text, const std::string& title,
                            const std::string& prefilled) override;

private:
    Answer Ask(const MessageBox& box) override;
    void ShowAnswered(const MessageBox& box, Answer answer) override { tellAnswered_(box, answer); }

    QWidget* window_;
    std::function<void()> beforeBox_;
    TellAnswered tellAnswered_;
};

/// The dice: a sequence of its own for every game.
class ClockSeededNumbers : public RandomNumbers {
public:
    void Seed() override { generator_.SeedFromClock(); }
    double Next() override { return generator_.Next(); }

private:
    UniformGenerator generator_;
};

}  // namespace qarn
