#pragma once

#include <glib-object.h>

#include <memory>

#include "desktop/free_with.h"

namespace qarn {

// What GLib hands over, freed when it goes out of scope.

using GlibText = std::unique_ptr<char, FreeWith<g_free>>;
using GlibKeyFile = std::unique_ptr<GKeyFile, FreeWith<g_key_file_free>>;

/// A reference to an object of GLib's, counted there.
template <typename Object>
using GlibObject = std::unique_ptr<Object, FreeWith<g_object_unref>>;

}  // namespace qarn
