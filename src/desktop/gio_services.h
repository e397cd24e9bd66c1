#pragma once

#include "core/ports.h"
#include "shell/shell_ports.h"

namespace qarn {

/// What GIO does for the program. It needs eight libraries that a game has no other use for, so it
/// stands in a module of its own.
struct GioServices {
    FileTypeRegistry& fileTypes;
    Wastebasket& wastebasket;
    Computer& computer;
};

constexpr auto gioModule = "qarn-gio.so";

/// The function of that module that gives them, by name and as a type.
constexpr auto gioFunction = "qarn_gio_services";
using GioFunction = const GioServices*();

}  // namespace qarn
