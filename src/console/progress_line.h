#pragma once

#include <iomanip>
#include <ostream>
#include <string>
#include <string_view>

namespace qarn {

/// The line that shows how much of a number of games has been played, and that is removed at the
/// end. Is written a hundred times at most; without a stream, nowhere.
class ProgressLine {
public:
    ProgressLine(std::ostream* out, std::string_view label, long games)
        : out_(out), label_(label), games_(games) {}
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine() {
        if (out_ != nullptr) *out_ << '\r' << std::string(30, ' ') << '\r' << std::flush;
    }

    void Show(long played) {
        const long percent = 100 * played / games_;
        if (out_ == nullptr || percent == percent_) return;
        percent_ = percent;
        *out_ << '\r' << std::setw(3) << label_ << ": " << percent << " % played" << std::flush;
    }

private:
    std::ostream* out_;
    std::string_view label_;
    long games_;
    long percent_ = -1;
};

}  // namespace qarn
