#pragma once

#include <QApplication>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <utility>

namespace qarn {

/// Acts for a person on the windows of a program as they come up, in nested event loops too. Each
/// step waits for a window of its kind, under no other modal one. Ends the test program when a
/// window does not come, or stays and is waited for.
class WindowScript {
public:
    WindowScript() {
        constexpr int milliseconds = 20'000;
        QTimer::singleShot(milliseconds, &context_, [this] {
            qFatal("%zu windows did not come up, or one did not close", steps_.size());
        });
    }

    template <typename Window>
    WindowScript& On(std::function<void(Window&)> act) {
        steps_.push_back([act]() -> std::function<void()> {
            Window* window = Shown<Window>();
            if (window == nullptr) return nullptr;
            return [=] { act(*window); };
        });
        if (steps_.size() == 1) Wait();
        return *this;
    }

    bool Done() const { return steps_.empty(); }

private:
    template <typename Window>
    static Window* Shown() {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr) return dynamic_cast<Window*>(modal);
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* window = dynamic_cast<Window*>(widget);
            if (window != nullptr && window->isVisible()) return window;
        }
        return nullptr;
    }

    void Wait() {
        constexpr int milliseconds = 1;
        if (!steps_.empty()) QTimer::singleShot(milliseconds, &context_, [this] { Act(); });
    }

    // A window is acted on when it is found for the second time: at the first, the event loop of
    // one that has just closed may still run. The next step may come while this one still waits
    // for what it has opened.
    void Act() {
        const auto act = steps_.front()();
        const bool foundBefore = std::exchange(found_, act != nullptr);
        if (!act || !foundBefore) return Wait();
        found_ = false;
        steps_.pop_front();
        Wait();
        act();
    }

    std::deque<std::function<std::function<void()>()>> steps_;
    bool found_ = false;
    QObject context_;
};

}  // namespace qarn
