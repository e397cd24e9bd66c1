#include "core/file_store.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <set>

#include "support/failing_calls.h"
#include "support/temp_folder.h"

namespace qarn {
namespace {

namespace fs = std::filesystem;

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const std::system_error& error) {
        return error.code().value();
    }
}

// The error of an action that a process of its own carries out.
int ErrorInChild(const std::function<void()>& action) {
    const pid_t child = fork();
    if (child == 0) _exit(ErrorOf(action));
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// Root may write everywhere, so it becomes nobody.
void GiveUpRoot() {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && setresuid(nobody, nobody, nobody) != 0) _exit(255);
}

TEST(FileStore, ReplacesAndKeepsLinksAndPermissions) {
    TempFolder folder;
    fs::create_directory(folder.Path() / "sub");
    const std::string file = folder / "sub/game";
    ReplaceFile(file, "new");
    EXPECT_EQ(ReadFile(file), "new");

    fs::permissions(file, fs::perms(0640));
    fs::create_symlink("sub/game", folder / "link");
    fs::create_symlink(folder / "link", folder / "link of link");
    ReplaceFile(folder / "link of link", "newer");
    EXPECT_EQ(ReadFile(file), "newer");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));
    EXPECT_EQ(fs::read_symlink(folder / "link"), "sub/game");
    EXPECT_TRUE(fs::is_symlink(folder / "link of link"));

    fs::create_symlink("sub/not there yet", folder / "dangling");
    ReplaceFile(folder / "dangling", "there");
    EXPECT_EQ(ReadFile(folder / "sub/not there yet"), "there");
    EXPECT_TRUE(fs::is_symlink(folder / "dangling"));
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "sub"), {}), 2);

    DeleteFile(file);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(ErrorOf([&] { DeleteFile(file); }), 0);
    EXPECT_NE(ErrorOf([&] { DeleteFile(folder / "sub"); }), 0);
}

TEST(FileStore, RefusalsLeaveEverythingAsItWas) {
    TempFolder folder;
    const std::string file = folder / "game";
    WriteFile(file, "old");
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    fs::create_directory(folder.Path() / "folder");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("pipe", folder / "link to a pipe");
    for (const auto& [path, error] : {std::pair{folder / "none/game", ENOENT},
                                      {file + "/game", ENOTDIR},
                                      {folder / "folder", EISDIR},
                                      {folder / "pipe", EINVAL},
                                      {folder / "link to a pipe", EINVAL},
                                      {folder / "a", ELOOP},
                                      {folder / std::string(300, 'n'), ENAMETOOLONG}}) {
        EXPECT_EQ(ErrorOf([&, &path = path] { ReplaceFile(path, "new"); }), error) << path;
    }
    for (const auto& [ofFile, ofFolder] : {std::pair{0444, 0777}, {0666, 0555}}) {
        fs::permissions(file, fs::perms(ofFile));
        fs::permissions(folder.Path(), fs::perms(ofFolder));
        const auto replace = [&] {
            GiveUpRoot();
            ReplaceFile(file, "new");
        };
        EXPECT_EQ(ErrorInChild(replace), EACCES);
    }
    fs::permissions(folder.Path(), fs::perms(0777));
    const auto fillTheDisk = [&] {  // it is full after 100 bytes
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100, 100};
        if (setrlimit(RLIMIT_FSIZE, &limit) == 0) ReplaceFile(file, std::string(101, 'n'));
    };
    EXPECT_EQ(ErrorInChild(fillTheDisk), EFBIG);
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(folder.Entries(), 6);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(FileStore, ReadsOnlyWholeOrdinaryFiles) {
    TempFolder folder;
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    WriteFile(folder / "largest", std::string(1 << 20, 'x'));
    WriteFile(folder / "larger", std::string((1 << 20) + 1, 'x'));
    EXPECT_EQ(ReadWholeFile(folder / "largest"), ReadFile(folder / "largest"));
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder / "larger"); }), EFBIG);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder / "none"); }), ENOENT);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder.Path()); }), EISDIR);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(pipe); }), EINVAL);
}

TEST(FileStore, RemovesAbandonedSavesOnly) {
    TempFolder folder;
    WriteFile(folder / ".qarn-save-0123456789abcdef", "left by somebody who was killed");
    WriteFile(folder / ".qarn-save-notes", "a person's own");
    fs::create_directory(folder.Path() / ".qarn-save-1123456789abcdef");
    fs::create_symlink(".qarn-save-notes", folder / ".qarn-save-2123456789abcdef");
    ASSERT_EQ(mkfifo((folder / ".qarn-save-3123456789abcdef").c_str(), 0600), 0);

    std::ptrdiff_t entriesMeanwhile = 0;
    const auto otherProgramsCome = [&] {
        EXPECT_EQ(ErrorInChild([&] { RemoveAbandonedSaves(folder.Path()); }), 0);
        EXPECT_EQ(ErrorInChild([&] { ReplaceFile(folder / "other", "saved"); }), 0);
        entriesMeanwhile = folder.Entries();
        return true;
    };
    EXPECT_TRUE(ReplaceFile(folder / "game", "new", otherProgramsCome));
    EXPECT_EQ(entriesMeanwhile, 6) << "the four that are no saves, the other's, and ours";
    EXPECT_EQ(ReadFile(folder / "game"), "new");
    EXPECT_EQ(folder.Entries(), 6);

    EXPECT_FALSE(ReplaceFile(folder / "game", "newer", [] { return false; }));
    const auto fail = []() -> bool { throw std::system_error(EIO, std::generic_category()); };
    EXPECT_EQ(ErrorOf([&] { ReplaceFile(folder / "game", "newer", fail); }), EIO);
    EXPECT_EQ(ReadFile(folder / "game"), "new");
    EXPECT_EQ(folder.Entries(), 6);
}

// The only entry of the folder that is new since `known`.
fs::path NewEntry(const fs::path& folder, const std::set<fs::path>& known) {
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (!known.contains(entry.path())) return entry.path();
    }
    return {};
}

// Nobody can plant anything under the name that a save takes, nor have it remove what is theirs.
TEST(FileStore, TemporaryNamesAreNobodysToKnow) {
    TempFolder folder;
    const std::string file = folder / "game";
    WriteFile(file, "old");
    std::set<fs::path> known{file};
    for (int save = 0; save < 2; ++save) {
        ReplaceFile(file, "new", [&] {
            const fs::path created = NewEntry(folder.Path(), known);
            EXPECT_NE(created, fs::path()) << "the same name twice";
            EXPECT_EQ(created.string().find(std::to_string(getpid())), std::string::npos);
            known.insert(created);
            return true;
        });
    }
    ReplaceFile(file, "newer", [&] {
        const fs::path created = NewEntry(folder.Path(), known);
        fs::remove(created);
        WriteFile(created, "somebody's");
        known.insert(created);
        return false;
    });
    EXPECT_EQ(folder.Entries(), 2) << "somebody's is still there";
}

// ---- What a save does when the system fails it: at every call, in every way ----

class SaveFaults : public testing::Test {
protected:
    SaveFaults() { WriteFile(file, "old"); }

    // The error that a save ends with; 0 when it succeeds.
    int Save(const std::optional<Fault>& fault) {
        const FailingCalls failing(fault);
        const int error = ErrorOf([&] { ReplaceFile(file, "the new one"); });
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
