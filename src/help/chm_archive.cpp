#include "help/chm_archive.h"

#include <chm_lib.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string_view>
#include <vector>

namespace qarn {
namespace {

constexpr std::uint64_t mostBytes = 64 << 20;

struct CloseChm {
    void operator()(chmFile* file) const { chm_close(file); }
};
using ChmHandle = std::unique_ptr<chmFile, CloseChm>;

[[noreturn]] void ThrowDamaged() {
    throw HelpFileError("It is damaged, or it is not a help file.");
}

void CheckReadable(const std::string& path) {
    std::error_code error;
    const bool isFile = std::filesystem::is_regular_file(path, error);
    if (error) throw HelpFileError(error.message() + ".");
    if (!isFile) throw HelpFileError("It is not a file.");
    if (!std::ifstream(path)) throw HelpFileError("It can not be read.");
}

int NoteUnit(chmFile*, chmUnitInfo* unit, void* units) {
    const std::string_view name = unit->path;
    if (name.starts_with('/') && !name.ends_with('/')) {
        static_cast<std::vector<chmUnitInfo>*>(units)->push_back(*unit);
    }
    return CHM_ENUMERATOR_CONTINUE;
}

std::string Retrieve(chmFile* file, chmUnitInfo& unit) {
    std::string bytes(unit.length, '\0');
    const LONGINT64 read =
        chm_retrieve_object(file, &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(unit.length));
    if (read != static_cast<LONGINT64>(unit.length)) ThrowDamaged();
    return bytes;
}

// The entries of the file "#SYSTEM" that are read here, by their codes.
enum SystemEntry { ContentsName = 0, StartPageName = 2 };
constexpr std::size_t systemHeaderSize = 4;

unsigned WordAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) |
           static_cast<unsigned>(static_cast<unsigned char>(bytes[at + 1])) << 8;
}

// An entry is its code, its length and its text, which ends at a zero.
std::string ReadSystemEntry(std::string_view system, SystemEntry wanted) {
    std::size_t at = systemHeaderSize;
    while (at + 4 <= system.size()) {
        const unsigned code = WordAt(system, at);
        const std::string_view text = system.substr(at + 4, WordAt(system, at + 2));
        if (code == wanted) return std::string(text.substr(0, text.find('\0')));
        at += 4 + text.size();
    }
    return {};
}

void ReadSystem(HelpContents& contents) {
    const auto system = contents.files.find("#SYSTEM");
    if (system == contents.files.end()) return;
    contents.startPage = ReadSystemEntry(system->second, StartPageName);
    contents.contentsName = ReadSystemEntry(system->second, ContentsName);
}

HelpContents ReadArchive(const std::string& path) {
    const ChmHandle file(chm_open(path.c_str()));
    if (!file) ThrowDamaged();

    std::vector<chmUnitInfo> units;
    if (chm_enumerate(file.get(), CHM_ENUMERATE_ALL, NoteUnit, &units) == 0) ThrowDamaged();

    HelpContents contents;
    std::uint64_t total = 0;
    for (chmUnitInfo& unit : units) {
        if (unit.length > mostBytes || (total += unit.length) > mostBytes) {
            throw HelpFileError("It is too large.");
        }
        contents.files[unit.path + 1] = Retrieve(file.get(), unit);
    }
    ReadSystem(contents);
    return contents;
}

[[noreturn]] void ReadOnTrial(const std::string& path) {
    constexpr rlimit mostSeconds{10, 10};
    setrlimit(RLIMIT_CPU, &mostSeconds);
    prctl(PR_SET_DUMPABLE, 0);  // a crash in here is no one's business
    try {
        ReadArchive(path);
    } catch (const std::exception&) {
        // This reading ended in good order; the real one will say the same.
    }
    _exit(0);
}

// The library divides by zero, or reads where nothing is, on some damaged files. A child process
// reads the file first, so that only the child can come to harm.
void CheckOnTrial(const std::string& path) {
    const pid_t child = fork();
    if (child == 0) ReadOnTrial(path);
    int status = 0;
    pid_t ended = child;
    if (child > 0) {
        do {
            ended = waitpid(child, &status, 0);
        } while (ended < 0 && errno == EINTR);
    }
    if (ended < 0 || status != 0) ThrowDamaged();
}

}  // namespace

HelpContents ReadChm(const std::string& path) {
    CheckReadable(path);
    CheckOnTrial(path);
    return ReadArchive(path);
}

}  // namespace qarn
