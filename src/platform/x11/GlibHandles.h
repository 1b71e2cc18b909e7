#pragma once

#include <memory>

#include <glib.h>

namespace quorvel::x11 {

struct GlibDeleter {
    void operator()(char* text) const { g_free(text); }
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
};

// Owners of what GLib hands out, one for each way of freeing it.
using GlibText = std::unique_ptr<char, GlibDeleter>;
using GlibError = std::unique_ptr<GError, GlibDeleter>;
using GlibKeyFile = std::unique_ptr<GKeyFile, GlibDeleter>;

} // namespace quorvel::x11
