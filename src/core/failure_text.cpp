#include "core/failure_text.h"

#include "core/player_error.h"

namespace qarn {

std::string FailureText(const std::exception_ptr& failure, std::string_view event) {
    try {
        std::rethrow_exception(failure);
    } catch (const PlayerError& error) {
        return error.what();
    } catch (...) {
        return "Internal error in " + std::string(event) + ".";
    }
}

}  // namespace qarn
