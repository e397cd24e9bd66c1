#include "help/chm_archive.h"

#include <chm_lib.h>
#include <sys/time.h>
#include <unistd.h>

#include <memory>
#include <new>
#include <string_view>
#include <vector>

#include "help/sent_help.h"

namespace qarn {
namespace {

struct CloseChm {
    void operator()(chmFile* file) const { chm_close(file); }
};
using ChmHandle = std::unique_ptr<chmFile, CloseChm>;

// Ends the process when it takes so much of the processor's time; none: no longer. The library
// follows a directory for ever whose blocks name each other in a circle.
void LimitTime(suseconds_t microseconds) {
    const itimerval limit{.it_interval = {}, .it_value = {0, microseconds}};
    setitimer(ITIMER_PROF, &limit, nullptr);
}

constexpr suseconds_t longestListing = 250'000;

struct Listing {
    std::vector<chmUnitInfo> units;
    std::size_t bytes = 0;
    bool tooLarge = false;
};

int NoteUnit(chmFile*, chmUnitInfo* unit, void* context) {
    Listing& listing = *static_cast<Listing*>(context);
    const std::string_view name = unit->path;
    if (!name.starts_with('/') || name.ends_with('/')) return CHM_ENUMERATOR_CONTINUE;
    listing.tooLarge = listing.units.size() == mostHelpFiles ||
                       unit->length > mostBytesOfHelpFile ||
                       (listing.bytes += unit->length) > mostBytesOfHelp;
    if (listing.tooLarge) return CHM_ENUMERATOR_FAILURE;
    listing.units.push_back(*unit);
    return CHM_ENUMERATOR_CONTINUE;
}

void Send(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = write(socket, bytes.data(), bytes.size());
        if (sent < 0) _exit(static_cast<int>(ChmResult::Damaged));  // nobody waits for it any more
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

// Gives false when the file does not hold all of it.
bool SendUnit(chmFile* file, chmUnitInfo& unit, int socket) {
    std::string bytes(unit.length, '\0');
    const LONGINT64 read =
        chm_retrieve_object(file, &unit, reinterpret_cast<unsigned char*>(bytes.data()), 0,
                            static_cast<LONGINT64>(unit.length));
    if (read != static_cast<LONGINT64>(unit.length)) return false;
    const std::string_view name = unit.path + 1;
    Send(socket, HeadOfSentFile(name.size(), bytes.size()));
    Send(socket, name);
    Send(socket, bytes);
    return true;
}

}  // namespace

ChmResult SendChm(const LockedIn&, const std::string& path, int socket) {
    Listing listing;
    listing.units.reserve(mostHelpFiles);  // no exception may pass through the library

    LimitTime(longestListing);
    const ChmHandle file(chm_open(path.c_str()));
    if (!file) return ChmResult::Damaged;
    const bool listed = chm_enumerate(file.get(), CHM_ENUMERATE_ALL, NoteUnit, &listing) != 0;
    LimitTime(0);

    if (listing.tooLarge) return ChmResult::TooLarge;
    if (!listed) return ChmResult::Damaged;
    for (chmUnitInfo& unit : listing.units) {
        if (!SendUnit(file.get(), unit, socket)) return ChmResult::Damaged;
    }
    return ChmResult::Whole;
}

}  // namespace qarn
