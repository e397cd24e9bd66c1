#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace qarn {

/// What a person reads of an exception that stopped an event: the text of a PlayerError; of
/// anything else only that it is an internal error, and in which event.
std::string FailureText(const std::exception_ptr& failure, std::string_view event);

}  // namespace qarn
