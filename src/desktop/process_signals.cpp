#include "desktop/process_signals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <system_error>

namespace qarn {
namespace {

std::atomic<bool> asked = false;
std::array<int, 2> ends{-1, -1};  // of a pipe: the second one is written to by the handler

void Note(int) {
    const int before = errno;
    asked = true;
    [[maybe_unused]] const ssize_t written = write(ends[1], "", 1);  // a full pipe tells it too
    errno = before;
}

void Catch(int number) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = Note;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
}

void Drain() {
    std::array<char, 16> bytes{};
    while (read(ends[0], bytes.data(), bytes.size()) > 0) {
    }
}

}  // namespace

void FillClosedStreams() {
    int lowest = 0;
    do {
        lowest = open("/dev/null", O_RDWR);
    } while (lowest >= 0 && lowest <= STDERR_FILENO);
    if (lowest >= 0) close(lowest);
}

void TellFullQuotas() { signal(SIGXFSZ, SIG_IGN); }

int NoteEndSignals() {
    if (ends[0] < 0 && pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category());
    }
    Drain();
    asked = false;
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) Catch(number);
    return ends[0];
}

bool IsAskedToEnd() { return asked; }

}  // namespace qarn
