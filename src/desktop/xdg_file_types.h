#pragma once

#include <map>
#include <string>

#include "core/ports.h"

namespace qarn {

/// The file types of a freedesktop.org desktop. The entries of a type are gathered until its open
/// command is set. Then they become a MIME type and a desktop entry in the person's data folder,
/// and the desktop opens such files with that command from there on.
class XdgFileTypes : public FileTypeRegistry {
public:
    bool CreateKey(const std::string& key) override;
    bool SetDefaultValue(const std::string& key, const std::string& value) override;

    /// For the key of an extension such as ".tgf": the desktop's name for the program that opens
    /// such files; none when there is none. Other keys have no value that could be read.
    std::optional<std::string> DefaultValue(const std::string& key) override;

private:
    std::map<std::string, std::string> values_;
};

}  // namespace qarn
