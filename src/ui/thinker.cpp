#include "ui/thinker.h"

#include <chrono>
#include <memory>

namespace qarn {

// The thread stays, with what choosers keep on it from one choice to the next.
Thinker::Thinker() {
    thread_.setMaxThreadCount(1);
    thread_.setExpiryTimeout(-1);
}

Thinker::~Thinker() { Drop(); }

void Thinker::Begin(const Choice& choice) {
    Drop();
    choice_ = choice;
    decideNow_ = std::stop_source();
    const auto promise = std::make_shared<std::promise<std::optional<Plan>>>();
    plan_ = promise->get_future();
    thread_.start([this, choice, promise, decideNow = decideNow_.get_token()] {
        try {
            Thinking thinking{.decideNow = decideNow};
            promise->set_value(Choose(choice, thinking));
        } catch (...) {
            promise->set_exception(std::current_exception());
        }
        emit Decided();
    });
}

bool Thinker::HasDecided() const {
    return plan_.valid() && plan_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

std::optional<Plan> Thinker::Take() {
    choice_.reset();
    return plan_.get();
}

void Thinker::Drop() {
    decideNow_.request_stop();
    thread_.waitForDone();
    choice_.reset();
    plan_ = {};
}

}  // namespace qarn
