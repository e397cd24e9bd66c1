#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/ports.h"
#include "shell/shell_ports.h"
#include "support/temp_folder.h"

namespace qarn {

/// Answers choices from a queue and records every box. A choice that no answer is queued for fails
/// the test.
class FakeDialogs : public Dialogs {
public:
    Answer Ask(const MessageBox& box) override {
        boxes.push_back(box);
        if (whileShown) whileShown();
        answers.push_back(Answer::OK);
        if (box.Offered == Buttons::OK) return answers.back();
        if (queued.empty()) {
            ADD_FAILURE() << "Nobody answers " << box.Text;
            return answers.back() = box.Offered == Buttons::YesNo ? Answer::No : Answer::Cancel;
        }
        answers.back() = queued.front();
        queued.pop_front();
        return answers.back();
    }
    void ShowAnswered(const MessageBox& box, Answer answer) override {
        boxes.push_back(box);
        if (whileShown) whileShown();
        answers.push_back(answer);
    }
    std::string AskSaveFileName(const std::string&) override { return saveFileName; }
    std::string AskOpenFileName(const std::string&) override { return openFileName; }
    std::string InputPrompt(const std::string& text, const std::string& title,
                            const std::string& prefilled) override {
        prompts.push_back({title, text, prefilled});
        return typedText;
    }

    std::deque<Answer> queued;
    std::function<void()> whileShown;  ///< what happens elsewhere while a box stands open
    std::string saveFileName;
    std::string openFileName;
    std::string typedText;                          ///< the answer to every prompt
    std::vector<std::vector<std::string>> prompts;  ///< title, text and prefilled of each
    std::vector<MessageBox> boxes;
    std::vector<Answer> answers;  ///< to each of the boxes
};

/// Gives queued numbers. A draw that no number is queued for fails the test.
class FakeRandomNumbers : public RandomNumbers {
public:
    void Seed() override { ++seeded; }
    double Next() override {
        if (queued.empty()) {
            ADD_FAILURE() << "An unexpected random number is drawn.";
            return 0;
        }
        const double number = queued.front();
        queued.pop_front();
        return number;
    }

    /// The middle of the numbers that the five-sided die shows as `roll`.
    void QueueRoll(int roll) { queued.push_back((roll - 0.5) / 5); }

    std::deque<double> queued;
    int seeded = 0;
};

class FakeHelp : public HelpViewer {
public:
    void ShowHelp(const std::string& strTopic) override { topics.push_back(strTopic); }

    std::vector<std::string> topics;
};

/// Settings in memory, with the reason why they can not be written, if any.
class FakeSettings : public SettingsStore {
public:
    std::string Read(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& defaultValue) override {
        const auto found = values.find(application + "/" + section + "/" + key);
        return found == values.end() ? defaultValue : found->second;
    }
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override {
        if (!writeError.empty()) throw std::runtime_error(writeError);
        values[application + "/" + section + "/" + key] = value;
    }
    std::string LoginName() override { return loginName; }

    std::map<std::string, std::string> values;
    std::string writeError;
    std::string loginName = "Al";
};

/// File types in memory; the keys `uncreatable` and `unwritable`, if any, fail as they say.
class FakeFileTypes : public FileTypeRegistry {
public:
    bool CreateKey(const std::string& key) override {
        keys.push_back(key);
        return key != uncreatable;
    }
    bool SetDefaultValue(const std::string& key, const std::string& value) override {
        const bool created = std::find(keys.begin(), keys.end(), key) != keys.end();
        if (!created || key == uncreatable || key == unwritable) return false;
        values[key] = value;
        return true;
    }
    std::optional<std::string> DefaultValue(const std::string& key) override {
        const auto found = values.find(key);
        if (found == values.end()) return std::nullopt;
        return found->second;
    }

    std::vector<std::string> keys;  ///< in the order of their creation
    std::map<std::string, std::string> values;
    std::string uncreatable;
    std::string unwritable;
};

/// Takes every file, unless it has a refusal.
struct FakeWastebasket : Wastebasket {
    void MoveThere(const std::string& path) override {
        if (!refusal.empty()) throw std::runtime_error(refusal);
        thrownAway.push_back(ReadFile(path));
        std::filesystem::remove(path);
    }

    std::string refusal;
    std::vector<std::string> thrownAway;  ///< the contents of the files
};

/// A display whose modes and answer to a change are given; records what it was asked for.
struct FakeDisplay : DisplaySettings {
    std::optional<DisplayMode> Mode(int number) override {
        const auto index = static_cast<std::size_t>(number);
        return index < modes.size() ? std::optional(modes[index]) : std::nullopt;
    }
    DisplayChange Change(const DisplayMode& request, bool permanent) override {
        changes += std::to_string(request.Width) + "x" + std::to_string(request.Height) +
                   (permanent ? " permanent " : " ");
        return result;
    }

    std::vector<DisplayMode> modes{{800, 600}, {1024, 768}};
    DisplayChange result = DisplayChange::Failed;
    std::string changes;
};

struct FakeComputer : Computer {
    void Restart() override { throw std::runtime_error("Not allowed."); }
};

}  // namespace qarn
