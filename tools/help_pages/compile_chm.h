#pragma once

#include <filesystem>

namespace qarn {

/// Runs the help compiler `chmcmd` on help.hhp in `folder` and puts what it makes, Help.chm, at
/// `target`. The same pages give the same file, byte for byte. Throws PageError when the compiler
/// fails or has anything to complain about: it does not stop at dead links itself.
void CompileChm(const std::filesystem::path& chmcmd, const std::filesystem::path& folder,
                const std::filesystem::path& target);

}  // namespace qarn
