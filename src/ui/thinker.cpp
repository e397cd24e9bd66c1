#include "ui/thinker.h"

#include <chrono>

namespace qarn {

// The thread stays, with what choosers keep on it from one choice to the next.
Thinker::Thinker() {
    thread_.setMaxThreadCount(1);
    thread_.setExpiryTimeout(-1);
}

Thinker::~Thinker() {
    Drop();
    thread_.waitForDone();
}

void Thinker::Begin(const Choice& choice) {
    Drop();
    choice_ = choice;
    decideNow_ = std::stop_source();
    promise_ = std::make_shared<Promise>();
    plan_ = promise_->get_future();
    thread_.start(
        [this, choice, wanted = std::weak_ptr(promise_), decideNow = decideNow_.get_token()] {
            const auto promise = wanted.lock();
            if (!promise) return;  // dropped before its turn came
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
    choice_.reset();
    promise_.reset();
    plan_ = {};
}

}  // namespace qarn
