// What a save does when the system fails it: at every call, in every way.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/file_store.h"
#include "support/failing_calls.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

class SaveFaults : public testing::Test {
protected:
    SaveFaults() { WriteFile(file, "old"); }

    // The error that a save ends with; 0 when it succeeds.
    int Save(const std::optional<Fault>& fault) {
        const FailingCalls failing(fault);
        int error = 0;
        try {
            ReplaceFile(file, "the new one");
        } catch (const std::system_error& failure) {
            error = failure.code().value();
        }
        calls = failing.Calls();
        return error;
    }

    TempFolder folder;
    std::string file = folder / "game";
    std::vector<std::string> calls;
};

// The new file is whole on the disk before it takes the old one's place, and the folder after.
TEST_F(SaveFaults, Order) {
    const std::vector<std::string> order{"create",       "own " + std::to_string(getuid()),
                                         "permit",       "write",
                                         "flush file",   "close file",
                                         "rename",       "open folder",
                                         "flush folder", "close folder",
                                         "close folder", "close file"};
    EXPECT_EQ(Save({}), 0);
    EXPECT_EQ(calls, order);
}

// The calls whose failure a person must read of.
bool Matters(const std::string& call) {
    return !call.starts_with("own") && call != "close folder" && call != "last close";
}

TEST_F(SaveFaults, EveryCallFails) {
    Save({});
    std::vector<std::string> order = calls;
    order.back() = "last close";
    for (const int error : {EIO, ENOSPC, EINTR, EPERM}) {
        for (std::size_t at = 0; at < 2 * order.size(); ++at) {
            const Fault fault{at / 2, at % 2 == 1, Fault::Fails, error};
            const std::string& call = order[fault.first];
            SCOPED_TRACE(call + (fault.andAllAfter ? " ff.: " : ": ") + std::to_string(error));
            WriteFile(file, "old");
            const int met = Save(fault);
            const std::string found = ReadFile(file);
            EXPECT_TRUE(found == "the new one" || (found == "old" && met == error)) << found;
            EXPECT_TRUE(met == 0 || met == error) << met;
            EXPECT_EQ(folder.Entries(), 1);
            const bool interruptedOnce =
                error == EINTR && !fault.andAllAfter && call != "rename" && call != "permit";
            if (interruptedOnce) {
                EXPECT_EQ(met, 0);
            } else if ((error == EIO || error == ENOSPC) && Matters(call)) {
                EXPECT_EQ(met, error);
            }
        }
    }
}

TEST_F(SaveFaults, WhatIsNoFailure) {
    for (const int error : {EPERM, EOPNOTSUPP, ENOSYS}) {
        for (const char* call : {"own", "permit"}) {
            EXPECT_EQ(Save(Fault{0, true, Fault::Fails, error, call}), 0) << call << error;
        }
    }
    EXPECT_EQ(Save(Fault{0, false, Fault::Fails, EEXIST, "create"}), 0) << "another name is free";
    EXPECT_EQ(Save(Fault{0, true, Fault::Fails, EEXIST, "create"}), EEXIST);
    EXPECT_EQ(Save(Fault{0, true, Fault::Fails, EINVAL, "flush folder"}), 0);
    EXPECT_EQ(Save(Fault{0, true, Fault::Shortens}), 0);
    EXPECT_EQ(ReadFile(file), "the new one");
    WriteFile(file, "old");
    EXPECT_EQ(Save(Fault{0, true, Fault::WritesNothing}), EIO);
    EXPECT_EQ(ReadFile(file), "old");
}

// Whatever the call before which the program is killed, the old file is there or the new one,
// whole, and what was left lying about goes with the next save.
TEST_F(SaveFaults, KilledBeforeEveryCall) {
    Save({});
    const std::size_t count = calls.size();
    std::ptrdiff_t mostEntries = 0;
    for (std::size_t call = 0; call < count; ++call) {
        WriteFile(file, "old");
        const pid_t child = fork();
        if (child == 0) _exit(Save(Fault{call, false, Fault::Kills}));
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        const std::string found = ReadFile(file);
        EXPECT_TRUE(found == "old" || found == "the new one") << calls[call] << ": " << found;
        mostEntries = std::max(mostEntries, folder.Entries());
        EXPECT_EQ(Save({}), 0);
        EXPECT_EQ(folder.Entries(), 1) << calls[call];
    }
    EXPECT_EQ(mostEntries, 2) << "killed in the middle of a save";
}

}  // namespace
}  // namespace qarn
