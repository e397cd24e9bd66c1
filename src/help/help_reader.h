#pragma once

#include <sys/types.h>

#include <string>

#include "help/help_contents.h"

namespace qarn {

/// A process of its own that reads one compiled help file: the library that does it writes past its
/// buffers, divides by zero or never returns on damaged files, and only that process may come to
/// harm.
class HelpReader {
public:
    /// Starts the process, which waits. It takes over what this one has in memory: start it before
    /// there are threads and windows.
    HelpReader();
    HelpReader(HelpReader&& other) noexcept;
    /// Ends the process.
    ~HelpReader();

    /// Has it read a whole compiled help file; can be called once. Throws HelpFileError when the
    /// file cannot be opened, is not such a file, is damaged, or holds more than sent_help.h says.
    HelpContents Read(const std::string& path);

private:
    int WaitForEnd();

    pid_t process_ = -1;
    int socket_ = -1;
};

}  // namespace qarn
