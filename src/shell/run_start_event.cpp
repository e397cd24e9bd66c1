#include "shell/run_start_event.h"

#include <optional>

#include "core/failure_text.h"

namespace qarn {
namespace {

// What a person should read of a handler's failure; nothing when it did not fail.
std::optional<std::string> FailureOf(const std::string& name,
                                     const std::function<void()>& handler) {
    try {
        handler();
        return std::nullopt;
    } catch (...) {
        return FailureText(std::current_exception(), name);
    }
}

}  // namespace

void RunEvent(StartWindow& window, const std::string& name,
              const std::function<void(StartWindow&)>& handler) {
    const StartControls controls = window.controls;
    const StartState state = window.state;
    const NextWindow next = window.Next;
    const std::string path = window.strGamePath;
    const auto failure = FailureOf(name, [&] { handler(window); });
    if (!failure) return;
    window.controls = controls;
    window.state = state;
    window.Next = next;
    window.strGamePath = path;
    window.ports.dialogs.Tell(*failure);
}

void RunEvent(StartUpWindow& window, const std::string& name,
              const std::function<void(StartUpWindow&)>& handler) {
    const bool onScreen = window.Visible;
    const auto failure = FailureOf(name, [&] { handler(window); });
    if (!failure) return;
    window.Visible = onScreen;
    window.Next = onScreen ? NextWindow::Same : NextWindow::Start;
    window.strGamePath.clear();
    window.dialogs.Tell(*failure);
}

}  // namespace qarn
