#include "help/lock_in.h"

#include <fcntl.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <stdexcept>

namespace qarn {
namespace {

// The compilers tell in two ways that the program is built under AddressSanitizer.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool underSanitizer = true;
#elif defined(__has_feature)
constexpr bool underSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool underSanitizer = false;
#endif

constexpr rlim_t mostSeconds = 10;  // of the processor
constexpr rlim_t mostMemory = 1 << 30;
constexpr rlim_t mostOpenFiles = STDERR_FILENO + 2;  // the standard ones and the help file

bool Limit(__rlimit_resource_t resource, rlim_t most) {
    const rlimit limit{most, most};
    return setrlimit(resource, &limit) == 0;
}

// What stood open when the process began is not its own.
bool LeaveOpenFiles() {
    const int nowhere = open("/dev/null", O_RDWR);
    if (nowhere < 0 || dup2(nowhere, STDOUT_FILENO) < 0 || dup2(nowhere, STDERR_FILENO) < 0) {
        return false;
    }
    return close_range(STDERR_FILENO + 1, ~0U, 0) == 0;
}

bool AllowOnlyReading() {
    struct Release {
        void operator()(void* filter) const { seccomp_release(filter); }
    };
    const std::unique_ptr<void, Release> filter(seccomp_init(SCMP_ACT_KILL_PROCESS));
    if (!filter) return false;

    // The conditions tell an argument by its number, from 0.
    bool ruled = true;
    const auto rule = [&](std::uint32_t action, int call,
                          std::initializer_list<scmp_arg_cmp> conditions) {
        ruled = ruled && seccomp_rule_add_array(filter.get(), action, call,
                                                static_cast<unsigned>(conditions.size()),
                                                conditions.begin()) == 0;
    };
    for (const int call :
         {SCMP_SYS(read), SCMP_SYS(pread64), SCMP_SYS(lseek), SCMP_SYS(fstat), SCMP_SYS(newfstatat),
          SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise), SCMP_SYS(futex),
          SCMP_SYS(setitimer), SCMP_SYS(exit_group)}) {
        rule(SCMP_ACT_ALLOW, call, {});
    }
    rule(SCMP_ACT_ALLOW, SCMP_SYS(write), {{0, SCMP_CMP_EQ, STDIN_FILENO, 0}});
    rule(SCMP_ACT_ALLOW, SCMP_SYS(openat),
         {{2, SCMP_CMP_MASKED_EQ, O_ACCMODE | O_CREAT | O_TRUNC, O_RDONLY}});
    rule(SCMP_ACT_ALLOW, SCMP_SYS(mmap), {{2, SCMP_CMP_MASKED_EQ, PROT_EXEC, 0}});
    // With the help file open for good, there is room for no other.
    rule(SCMP_ACT_ERRNO(EPERM), SCMP_SYS(close), {});
    return ruled && seccomp_load(filter.get()) == 0;
}

}  // namespace

LockedIn::LockedIn() {
    prctl(PR_SET_DUMPABLE, 0);  // a crash in here is no one's business
    const bool limited =
        LeaveOpenFiles() && Limit(RLIMIT_CPU, mostSeconds) && Limit(RLIMIT_NOFILE, mostOpenFiles);
    const bool lockedIn =
        limited && (underSanitizer || (Limit(RLIMIT_AS, mostMemory) && AllowOnlyReading()));
    if (!lockedIn) throw std::runtime_error("The process can not be locked in.");
}

}  // namespace qarn
