#pragma once

#include <flatpak/flatpak.h>

#include <memory>
#include <vector>

// What the code that talks to libflatpak shares: ownership of GLib objects, and the installations.
namespace CleanerCore::Platform {

template <typename T> struct GObjectDeleter {
    void operator()(T* object) const { g_object_unref(object); }
};
template <typename T> using GObjectPointer = std::unique_ptr<T, GObjectDeleter<T>>;

struct PointerArrayDeleter {
    void operator()(GPtrArray* array) const { g_ptr_array_unref(array); }
};
using PointerArray = std::unique_ptr<GPtrArray, PointerArrayDeleter>;

// The installations libflatpak knows, the user's first: it is opened as the user's, so acting on it
// needs no helper and no password, while a system one goes through the system helper.
std::vector<GObjectPointer<::FlatpakInstallation>> openFlatpakInstallations();

} // namespace CleanerCore::Platform
