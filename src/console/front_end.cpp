#include "console/front_end.h"

#include <istream>
#include <optional>
#include <ostream>

#include "console/answers_text.h"
#include "console/printable.h"
#include "console/session.h"
#include "console/state_json.h"
#include "console/text_view.h"
#include "console/words.h"

namespace qarn {
namespace {

bool IsPassedOver(const std::string& line) {
    return line.starts_with('#') || line.find_first_not_of(" \t\r") == std::string::npos;
}

// Gives the reason when the command was refused, else an empty string.
std::string Execute(Session& session, const std::vector<std::string>& words) {
    try {
        session.Execute(words);
        return {};
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

std::string ExecuteLine(Session& session, const std::string& line) {
    try {
        return Execute(session, SplitWords(line));
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
}

bool IsQuit(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t");
    const std::size_t last = line.find_last_not_of(" \t\r");
    return first != std::string::npos && line.substr(first, last - first + 1) == "quit";
}

// Gives the next command, passing over what is none; false when there are no more. A person is
// prompted for it.
bool TakeCommand(const Commands& commands, std::ostream* prompts, std::string& line) {
    do {
        if (commands.isAskedToEnd()) return false;
        if (prompts != nullptr) *prompts << "> " << std::flush;
        if (!std::getline(commands.in, line) || IsQuit(line)) return false;
    } while (IsPassedOver(line));
    return true;
}

// The exit status.
int EndOf(Session& session, const Commands& commands) {
    if (commands.isAskedToEnd()) session.CloseWithoutBoxes();
    return session.CurrentGame().exitStatus;
}

std::string ChoicesOf(Buttons offered) {
    switch (offered) {
        case Buttons::YesNo:
            return "yes or no";
        case Buttons::RetryCancel:
            return "retry or cancel";
        default:
            return {};
    }
}

// Shows a box to the person at the terminal, and asks until a choice is made or the input ends.
std::optional<Answer> AskPerson(std::istream& in, std::ostream& out, const MessageBox& box) {
    out << "\n--- " << (box.Title.empty() ? "" : box.Title + ": ") << Printable(box.Text) << '\n';
    const std::string choices = ChoicesOf(box.Offered);
    if (box.Offered == Buttons::OK) return Answer::OK;
    for (;;) {
        out << "--- " << choices << "? " << std::flush;
        std::string word;
        if (!std::getline(in, word)) return std::nullopt;
        const std::optional<Answer> answer = AnswerOf(word);
        if (answer && Offers(box.Offered, *answer)) return answer;
    }
}

// The person's view of one command's outcome.
class Terminal {
public:
    Terminal(std::ostream& out, bool colors) : out_(out), colors_(colors) {}

    void Show(Session& session, const std::string& error) {
        const Game& game = session.CurrentGame();
        for (const std::string& topic : session.Help().TakeTopics()) {
            out_ << "The help page is " << (topic.empty() ? "the start page" : topic) << ".\n";
        }
        if (!error.empty()) out_ << Printable(error) << '\n';
        if (!game.blnOpen) return;
        PrintBoard(out_, game, colors_);
        PrintStatus(out_, game);
        PrintAnswers(out_, session.TakeAnswers());
    }

private:
    std::ostream& out_;
    bool colors_;
};

}  // namespace

int RunForProgram(const Commands& commands, std::ostream& out, std::ostream& errors,
                  const DesktopPorts& desktop, const std::string& file) {
    Session session(desktop, commands.isAskedToEnd);
    if (!file.empty()) {
        const std::string error = Execute(session, {"open", file});
        if (!error.empty()) errors << Printable(error) << std::endl;
        session.Dialogs().TakeShown();
        session.TakeHappenings();
    }
    for (std::string line; TakeCommand(commands, nullptr, line);) {
        CommandOutcome outcome;
        outcome.error = ExecuteLine(session, line);
        outcome.boxes = session.Dialogs().TakeShown();
        outcome.help = session.Help().TakeTopics();
        outcome.happenings = session.TakeHappenings();
        outcome.answers = session.TakeAnswers();
        out << OneLine(StateJson(outcome, session.CurrentGame())) << std::endl;
    }
    return EndOf(session, commands);
}

int RunForPerson(const Commands& commands, std::ostream& out, const DesktopPorts& desktop,
                 const std::string& file, bool colors) {
    Session session(desktop, commands.isAskedToEnd);
    session.Dialogs().SetAskPerson(
        [&](const MessageBox& box) { return AskPerson(commands.in, out, box); });
    session.Dialogs().SetTellPerson([&](const MessageBox& box, Answer answer) {
        out << "\n--- " << Printable(box.Text) << " (" << WordOf(answer) << ")\n";
    });
    Terminal terminal(out, colors);
    if (file.empty()) {
        PrintHelp(out);
    } else {
        terminal.Show(session, Execute(session, {"open", file}));
    }
    for (std::string line; !session.CurrentGame().blnEnded && TakeCommand(commands, &out, line);) {
        if (line == "help") {
            PrintHelp(out);
        } else {
            terminal.Show(session, ExecuteLine(session, line));
        }
    }
    return EndOf(session, commands);
}

}  // namespace qarn
