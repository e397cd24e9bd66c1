#pragma once

#include <QDialog>
#include <QWidget>
#include <functional>
#include <vector>

#include "core/ports.h"
#include "core/random_numbers.h"

namespace qarn {

/// Thrown out of a box or dialog that nobody can answer any more, so that the event that it belongs
/// to is given up.
struct DialogGivenUp {};

/// Boxes and file dialogs over one window.
class QtDialogs : public Dialogs {
public:
    using TellAnswered = std::function<void(const MessageBox&, Answer)>;
    using KeptClear = std::function<std::vector<QRect>()>;

    /// `beforeBox` runs before each box, so that what the box comments on is on screen. Where
    /// opponents play, `tellAnswered` gets each box that one of them has answered. `keptClear` says
    /// which places of the screen a box is not to hide, where the desktop lets it choose.
    QtDialogs(
        QWidget* window, std::function<void()> beforeBox, TellAnswered tellAnswered = {},
        KeptClear keptClear = [] { return std::vector<QRect>(); });

    /// From now on nobody is asked: each box and dialog, those that are open included, is given up.
    void GiveUp() { givenUp_ = true; }

    std::string AskSaveFileName(const std::string& path) override;
    std::string AskOpenFileName(const std::string& folder) override;
    std::string InputPrompt(const std::string& text, const std::string& title,
                            const std::string& prefilled) override;

private:
    Answer Ask(const MessageBox& box) override;
    int Run(QDialog& dialog);
    void ShowAnswered(const MessageBox& box, Answer answer) override { tellAnswered_(box, answer); }

    QWidget* window_;
    std::function<void()> beforeBox_;
    TellAnswered tellAnswered_;
    KeptClear keptClear_;
    bool givenUp_ = false;
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
