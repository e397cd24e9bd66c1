#pragma once

#include <optional>
#include <string>

namespace qarn {

// What leaves the program. Each front end implements these; the handlers know nothing else of the
// world.

enum class Buttons { OK, YesNo, RetryCancel };
enum class Answer { OK, Yes, No, Retry, Cancel };
enum class Icon { None, Information };

struct MessageBox {
    std::string Title;  ///< empty: the box has no title of its own and bears the program's name
    std::string Text;
    Buttons Offered = Buttons::OK;
    Icon Shown = Icon::None;
    bool DeclinedByDefault = false;  ///< Enter alone says No, where Yes would lose something
    bool ForThePerson = false;       ///< no opponent answers it, whoever acts
};

/// Modal boxes and prompts. Each call returns when the person has answered.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// Shows a box and gives the answer to it: the person's or, while an opponent answers for
    /// itself, that it agrees.
    Answer Show(const MessageBox& box) {
        const Answer answer = AnswerTo(box);
        if (answer != Answer::No && answer != Answer::Cancel) ++confirmed_;
        return answer;
    }

    /// How many boxes have been confirmed so far: answered with anything but no or cancel.
    int Confirmed() const { return confirmed_; }

    /// True when nobody was there to answer the last choice, which counts as declined then.
    bool NobodyAnswered() const { return nobodyAnswered_; }

    /// From now on the opponent answers the boxes itself, or the person does again.
    void LetOpponentAnswer(bool answers) { opponentAnswers_ = answers; }

    /// Asks for a file to save to; `path` is where the dialog starts. Gives an absolute path, or an
    /// empty string when the person cancelled.
    virtual std::string AskSaveFileName(const std::string& path) = 0;

    /// Asks for an existing game file; `folder` is where the dialog starts. Gives an absolute path,
    /// or an empty string when the person cancelled.
    virtual std::string AskOpenFileName(const std::string& folder) = 0;

    /// Asks for one line of text in a field that holds `prefilled` at first. Gives an empty string
    /// when the person cancelled.
    virtual std::string InputPrompt(const std::string& text, const std::string& title,
                                    const std::string& prefilled) = 0;

    /// A box with the text alone and OK.
    void Tell(const std::string& text) { Show({.Title = {}, .Text = text}); }

protected:
    void NoteNobodyAnswered(bool nobody) { nobodyAnswered_ = nobody; }

    /// Shows the box to a person, who answers it.
    virtual Answer Ask(const MessageBox& box) = 0;

    /// Shows what an opponent was asked and has answered, without waiting.
    virtual void ShowAnswered(const MessageBox& box, Answer answer) = 0;

private:
    Answer AnswerTo(const MessageBox& box) {
        if (!opponentAnswers_ || box.ForThePerson) return Ask(box);
        const Answer answer = box.Offered == Buttons::YesNo ? Answer::Yes : Answer::OK;
        ShowAnswered(box, answer);
        return answer;
    }

    bool opponentAnswers_ = false;
    bool nobodyAnswered_ = false;
    int confirmed_ = 0;
};

/// Uniform random numbers.
class RandomNumbers {
public:
    virtual ~RandomNumbers() = default;

    /// Starts a new sequence, from the clock unless a front end was told otherwise.
    virtual void Seed() = 0;

    /// The next number of the sequence, at least 0 and below 1.
    virtual double Next() = 0;
};

/// The viewer of the help file.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;

    /// Opens the help file at the topic, at its start page when that is empty, and returns at once.
    virtual void ShowHelp(const std::string& strTopic) = 0;
};

/// The settings that outlive the program, one string a place. A place is named by application,
/// section and key.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The stored value, or `defaultValue` when there is none or it cannot be read.
    virtual std::string Read(const std::string& application, const std::string& section,
                             const std::string& key, const std::string& defaultValue) = 0;

    /// Stores a value. Throws std::runtime_error with the reason when it cannot.
    virtual void Write(const std::string& application, const std::string& section,
                       const std::string& key, const std::string& value) = 0;

    /// The login name of the person who runs the program.
    virtual std::string LoginName() = 0;
};

/// The file types that the desktop knows: keys, which hold one text each, their default value. A
/// key is named by its path from the class root, with "\\" between its parts.
class FileTypeRegistry {
public:
    virtual ~FileTypeRegistry() = default;

    /// Creates the key, or opens it when it exists. Gives false when it cannot.
    virtual bool CreateKey(const std::string& key) = 0;

    /// Sets the default value of a key that was created. Gives false when it cannot.
    virtual bool SetDefaultValue(const std::string& key, const std::string& value) = 0;

    /// The default value of a key; none when there is no such key or it has no value.
    virtual std::optional<std::string> DefaultValue(const std::string& key) = 0;
};

/// Folders, as absolute paths.
struct ProgramFolders {
    std::string program;         ///< the one that the program itself stands in
    std::string userData;        ///< the person's own for this program's files; need not exist yet
    bool isBuildTree = false;    ///< the program still stands where it was built
    std::string userState = {};  ///< the person's own for what it was doing; empty: it keeps none
};

/// What the desktop keeps for the program, whatever its front end.
struct DesktopPorts {
    SettingsStore& settings;
    FileTypeRegistry& fileTypes;
    ProgramFolders folders;
};

/// The ports of one front end.
struct Ports {
    Dialogs& dialogs;
    RandomNumbers& random;
    HelpViewer& help;
    SettingsStore& settings;
    FileTypeRegistry& fileTypes;
    ProgramFolders folders;
};

/// Thrown to end the program at once, from wherever a rule stands, so that nothing after the end
/// of a game still runs. RunEvent catches it.
struct ProgramEnd {
    int exitStatus = 0;
};

}  // namespace qarn
