#include "console/watched_input.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

namespace qarn {

WatchedInput::WatchedInput(int input, int end)
    : input_(input), end_(end), terminal_(isatty(input) != 0) {}

// Gives false when the end has come.
bool WatchedInput::WaitForInput() {
    std::array<pollfd, 2> watched{{{input_, POLLIN, 0}, {end_, POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), -1) < 0) {
        if (errno != EINTR) return false;
    }
    hungUp_ = terminal_ && (watched[0].revents & POLLHUP) != 0;
    return watched[1].revents == 0 && !hungUp_;
}

WatchedInput::int_type WatchedInput::underflow() {
    if (!WaitForInput()) return traits_type::eof();
    const ssize_t count = read(input_, buffer_.data(), buffer_.size());
    if (count <= 0) return traits_type::eof();
    setg(buffer_.data(), buffer_.data(), buffer_.data() + count);
    return traits_type::to_int_type(buffer_[0]);
}

}  // namespace qarn
