#include "help/help_reader.h"

#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <new>
#include <span>
#include <string_view>
#include <utility>

#include "help/chm_archive.h"
#include "help/lock_in.h"
#include "help/sent_help.h"

namespace qarn {
namespace {

constexpr int notLockedIn = 100;  // an exit status beside those of ChmResult

[[noreturn]] void ThrowTooLarge() { throw HelpFileError("It is too large."); }

void CheckReadable(const std::string& path) {
    std::error_code error;
    const bool isFile = std::filesystem::is_regular_file(path, error);
    if (error) throw HelpFileError(error.message() + ".");
    if (!isFile) throw HelpFileError("It is not a file.");
    if (access(path.c_str(), R_OK) != 0) throw HelpFileError("It can not be read.");
}

// The next bytes that come; none at the end.
std::string_view ReadSome(int socket, std::span<char> buffer) {
    for (;;) {
        const ssize_t count = read(socket, buffer.data(), buffer.size());
        if (count >= 0) return {buffer.data(), static_cast<std::size_t>(count)};
        if (errno != EINTR) return {};
    }
}

std::string ReadToEnd(int socket, std::size_t most) {
    std::string text;
    std::array<char, 1 << 16> buffer;
    for (;;) {
        const std::string_view some = ReadSome(socket, buffer);
        if (some.empty()) return text;
        if (text.size() + some.size() > most) ThrowTooLarge();
        text += some;
    }
}

// What the process does: it is told a path, or that there is none.
[[noreturn]] void ServeParent(int socket) {
    constexpr std::size_t longestPath = 1 << 16;
    int status = notLockedIn;
    try {
        const std::string path = ReadToEnd(socket, longestPath);
        if (path.empty()) _exit(0);
        if (dup2(socket, STDIN_FILENO) == STDIN_FILENO) {
            status = static_cast<int>(SendChm(LockedIn(), path, STDIN_FILENO));
        }
    } catch (const std::bad_alloc&) {
        status = static_cast<int>(ChmResult::TooLarge);
    } catch (const std::runtime_error&) {
        // it is not locked in
    }
    _exit(status);
}

// Any end but those that the process has chosen itself is one that the file has led to.
void ThrowUnlessWhole(int status) {
    if (WIFEXITED(status)) {
        switch (WEXITSTATUS(status)) {
            case static_cast<int>(ChmResult::Whole):
                return;
            case static_cast<int>(ChmResult::TooLarge):
                ThrowTooLarge();
            case notLockedIn:
                throw HelpFileError("This system does not let it be read safely.");
        }
    }
    throw HelpFileError("It is damaged, or it is not a help file.");
}

}  // namespace

HelpReader::HelpReader() {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    process_ = fork();
    if (process_ == 0) {
        close(ends[0]);
        ServeParent(ends[1]);
    }
    close(ends[1]);
    socket_ = ends[0];
}

HelpReader::HelpReader(HelpReader&& other) noexcept
    : process_(std::exchange(other.process_, -1)), socket_(std::exchange(other.socket_, -1)) {}

HelpReader::~HelpReader() {
    if (socket_ >= 0) close(socket_);
    if (process_ < 0) return;
    kill(process_, SIGKILL);
    WaitForEnd();
}

HelpContents HelpReader::Read(const std::string& path) {
    CheckReadable(path);
    if (process_ < 0) throw HelpFileError("No process can be started that reads it.");
    // Should the process have been killed, its end tells so.
    send(socket_, path.data(), path.size(), MSG_NOSIGNAL);
    shutdown(socket_, SHUT_WR);
    const std::string sent = ReadToEnd(socket_, mostBytesSent);
    ThrowUnlessWhole(WaitForEnd());
    return ContentsOfSentHelp(sent);
}

int HelpReader::WaitForEnd() {
    int status = -1;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
    return status;
}

}  // namespace qarn
