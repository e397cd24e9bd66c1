#pragma once

#include <glib.h>

#include <string>

namespace qarn {

/// The error that a call of GLib reports through its last argument, which is Out().
class GlibError {
public:
    GlibError() = default;
    GlibError(const GlibError&) = delete;
    GlibError& operator=(const GlibError&) = delete;
    ~GlibError() { g_clear_error(&error_); }

    GError** Out() { return &error_; }
    /// What went wrong, as a sentence; only after a call that failed.
    std::string Reason() const { return std::string(error_->message) + "."; }

private:
    GError* error_ = nullptr;
};

}  // namespace qarn
