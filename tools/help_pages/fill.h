#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace qarn {

/// A page can not be made. what() names the page and says why.
class PageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What stands for a mark such as {{odds}} or {{menu:mnuSave}}: a function of what follows the
/// colon.
using Fillers = std::map<std::string, std::function<std::string(const std::string& argument)>>;

/// The text with its marks filled. Throws PageError, naming `page`, for a mark that is not known.
std::string Fill(const std::string& page, const std::string& text, const Fillers& fillers);

}  // namespace qarn
