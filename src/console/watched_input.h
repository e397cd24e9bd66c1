#pragma once

#include <array>
#include <streambuf>

namespace qarn {

/// Reads a descriptor until its end, or until another one can be read from, whichever is first.
class WatchedInput : public std::streambuf {
public:
    /// `end` is the other one. Both stay open as long as this.
    WatchedInput(int input, int end);

    /// True once the terminal that it reads from has gone.
    bool HasHungUp() const { return hungUp_; }

protected:
    int_type underflow() override;

private:
    bool WaitForInput();

    int input_;
    int end_;
    bool terminal_;
    bool hungUp_ = false;
    std::array<char, 4096> buffer_{};
};

}  // namespace qarn
