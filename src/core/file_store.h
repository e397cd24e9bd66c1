#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <system_error>

namespace qarn {

/// Reads a whole file of at most 1 MiB. Throws std::system_error with the reason when it cannot be
/// opened or read, is not a regular file, or is larger.
std::string ReadWholeFile(const std::string& path);

/// Puts new contents in the place of a file, or makes the file. The contents go to a new file in
/// the same folder, are flushed to the disk, and are renamed over the old file, so that a crash or
/// a full disk leaves the old file or the new one, whole. Keeps the old file's permissions, and a
/// symbolic link stays one. Removes the folder's abandoned saves. Throws std::system_error with the
/// reason; the old file is then untouched.
void ReplaceFile(const std::string& path, std::string_view contents);

/// The same, but once the new contents are on the disk, `mayReplace` has the last word: when it
/// gives false, or throws, the new file goes. Gives what it gave.
bool ReplaceFile(const std::string& path, std::string_view contents,
                 const std::function<bool()>& mayReplace);

/// Removes the new files that programs left in a folder when they were killed in the middle of a
/// save. One that a running program still writes stays, and so does what cannot be removed.
void RemoveAbandonedSaves(const std::string& folder);

/// Deletes a file. Throws std::system_error with the reason; a file that is already gone is none.
void DeleteFile(const std::string& path);

}  // namespace qarn
