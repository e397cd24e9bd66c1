#pragma once

#include <QObject>
#include <QThreadPool>
#include <future>
#include <memory>
#include <optional>
#include <stop_token>

#include "ai/choose_move.h"

namespace qarn {

/// Has opponents choose on a thread of its own, one choice at a time, so that the window never
/// waits for one. A choice is dropped when another one begins and when the thinker goes.
class Thinker : public QObject {
    Q_OBJECT

public:
    Thinker();
    ~Thinker() override;

    /// Begins to think over a choice.
    void Begin(const Choice& choice);

    /// The choice that it thinks over, or has made and not yet told.
    const std::optional<Choice>& Current() const { return choice_; }

    /// True once the plan of that choice can be taken.
    bool HasDecided() const;

    /// Has it take the best that it has found so far.
    void DecideNow() { decideNow_.request_stop(); }

    /// The plan, once it has decided. Throws what the chooser threw.
    std::optional<Plan> Take();

    /// Forgets the choice. Its thread stops to think soon.
    void Drop();

signals:
    void Decided();

private:
    using Promise = std::promise<std::optional<Plan>>;

    std::optional<Choice> choice_;
    std::shared_ptr<Promise> promise_;
    std::future<std::optional<Plan>> plan_;
    std::stop_source decideNow_;
    QThreadPool thread_;
};

}  // namespace qarn
