#pragma once

namespace qarn {

/// The deleter of a std::unique_ptr to what a C library hands over: calls that library's function.
template <auto Free>
struct FreeWith {
    template <typename Object>
    void operator()(Object* object) const {
        Free(object);
    }
};

}  // namespace qarn
