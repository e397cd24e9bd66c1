#pragma once

#include <string>

namespace qarn {

/// A function of a module: a library in the folder of the program that is loaded when it is first
/// needed, with those that it needs itself, and then stays. Throws std::runtime_error with the
/// reason when it cannot be loaded.
void* FunctionOfModule(const std::string& module, const char* function);

}  // namespace qarn
