// Takes the place of calls of the C library in the program that it is linked into.

#include "support/failing_calls.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>

namespace qarn {
namespace {

bool recording = false;
std::optional<Fault> planned;
std::size_t met = 0;
std::vector<std::string> calls;

// The fault that meets this call, if any.
const Fault* Note(const std::string& call) {
    if (!recording) return nullptr;
    calls.push_back(call);
    if (!planned || !call.starts_with(planned->only)) return nullptr;
    const std::size_t number = met++;
    const bool hit = planned->andAllAfter ? number >= planned->first : number == planned->first;
    if (!hit) return nullptr;
    if (planned->kind == Fault::Kills) raise(SIGKILL);
    errno = planned->error;
    return &*planned;
}

bool Fails(const std::string& call) {
    const Fault* fault = Note(call);
    return fault != nullptr && fault->kind == Fault::Fails;
}

std::string KindOf(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode) ? " folder" : " file";
}

template <typename Function>
Function* Real(Function*, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

FailingCalls::FailingCalls(const std::optional<Fault>& fault) {
    calls.clear();
    met = 0;
    planned = fault;
    recording = true;
}

FailingCalls::~FailingCalls() { recording = false; }

const std::vector<std::string>& FailingCalls::Calls() const { return calls; }

}  // namespace qarn

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    const bool folder = (flags & O_DIRECTORY) != 0;
    const bool safely = (flags & O_EXCL) != 0 && (flags & O_NOFOLLOW) != 0;
    if (folder && qarn::Fails("open folder")) return -1;
    if ((flags & O_CREAT) != 0 && qarn::Fails(safely ? "create" : "create carelessly")) return -1;
    return qarn::Real(open, "open")(path, flags, mode);
}

int fchown(int descriptor, uid_t user, gid_t group) noexcept {
    if (qarn::Fails("own " + std::to_string(user))) return -1;
    return qarn::Real(fchown, "fchown")(descriptor, user, group);
}

int fchmod(int descriptor, mode_t mode) noexcept {
    if (qarn::Fails("permit")) return -1;
    return qarn::Real(fchmod, "fchmod")(descriptor, mode);
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    const qarn::Fault* fault = qarn::Note("write");
    if (fault != nullptr && fault->kind == qarn::Fault::Fails) return -1;
    if (fault != nullptr && fault->kind == qarn::Fault::WritesNothing) return 0;
    if (fault != nullptr) count = (count + 1) / 2;
    return qarn::Real(write, "write")(descriptor, bytes, count);
}

int fsync(int descriptor) {
    if (qarn::Fails("flush" + qarn::KindOf(descriptor))) return -1;
    return qarn::Real(fsync, "fsync")(descriptor);
}

// Even a close that fails leaves nothing open.
int close(int descriptor) {
    const bool fails = qarn::Fails("close" + qarn::KindOf(descriptor));
    const int error = errno;
    const int result = qarn::Real(close, "close")(descriptor);
    if (!fails) return result;
    errno = error;
    return -1;
}

int rename(const char* from, const char* to) noexcept {
    if (qarn::Fails("rename")) return -1;
    return qarn::Real(rename, "rename")(from, to);
}

}  // extern "C"
