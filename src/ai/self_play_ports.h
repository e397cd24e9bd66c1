#pragma once

#include <cstdint>
#include <string>

#include "core/no_desktop.h"
#include "core/ports.h"
#include "core/random_numbers.h"

namespace qarn {

/// The ports of a game that the computer plays against itself: goes on at every box, draws its
/// numbers from one seed, and has no help, no settings, no file types and no files.
class SelfPlayPorts {
public:
    explicit SelfPlayPorts(std::uint64_t seed) : random_(seed) {}

    Ports All() { return {dialogs_, random_, help_, settings_, fileTypes_, {}}; }

    /// The text of the box shown last.
    const std::string& LastText() const { return dialogs_.lastText; }

private:
    struct ConsentingDialogs : Dialogs {
        Answer Ask(const MessageBox& box) override {
            lastText = box.Text;
            return box.Offered == Buttons::YesNo ? Answer::Yes : Answer::OK;
        }
        void ShowAnswered(const MessageBox&, Answer) override {}
        std::string AskSaveFileName(const std::string&) override { return {}; }
        std::string AskOpenFileName(const std::string&) override { return {}; }
        std::string InputPrompt(const std::string&, const std::string&,
                                const std::string& prefilled) override {
            return prefilled;
        }

        std::string lastText;
    };

    class SeededNumbers : public RandomNumbers {
    public:
        explicit SeededNumbers(std::uint64_t seed) : seed_(seed) {}

        void Seed() override { generator_.Seed(seed_); }
        double Next() override { return generator_.Next(); }

    private:
        std::uint64_t seed_;
        UniformGenerator generator_;
    };

    ConsentingDialogs dialogs_;
    SeededNumbers random_;
    NoHelp help_;
    NoSettings settings_;
    NoFileTypes fileTypes_;
};

}  // namespace qarn
