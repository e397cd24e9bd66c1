#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "help/help_contents.h"
#include "help/help_reader.h"

namespace qarn {

/// One line of the table of contents, and the lines below it.
struct ContentsEntry {
    std::string title;
    std::string page;  ///< with its anchor, if any; empty for a mere heading
    std::vector<ContentsEntry> entries;
};

/// The help in memory. It stays as it was read when what is on the disk changes.
class HelpFile {
public:
    /// Has `reader` read a compiled help file, or reads a folder of the pages that one is made of.
    /// Throws HelpFileError when it cannot be read, or has no start page.
    HelpFile(const std::string& path, HelpReader reader);

    /// A page, picture or style sheet, whatever the case of its name; null when there is none.
    const std::string* Find(std::string_view name) const;

    /// The names of all pages, in the order of the alphabet.
    std::vector<std::string> PageNames() const;

    const std::string& StartPage() const { return help_.startPage; }
    const std::vector<ContentsEntry>& Contents() const { return contents_; }

private:
    HelpContents help_;
    std::vector<ContentsEntry> contents_;
};

/// Reads a table of contents in the form that help compilers take: nested lists of objects with a
/// "Name" and a "Local" parameter. What is not understood is left out.
std::vector<ContentsEntry> ParseContents(std::string_view html);

}  // namespace qarn
