#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/controls.h"

namespace qarn {

/// The text as it stands in a page: the characters that mean something there, and all beyond ASCII,
/// become entities.
std::string Escape(std::string_view utf8);

/// The address of a page or picture as it stands in a link.
std::string Address(std::string_view name);

/// One row of a table, of cells that are given as they stand in the page. `cell` is "td" or "th".
std::string Row(std::initializer_list<std::string> cells, std::string_view cell = "td");

/// A table of a class of the style sheet.
std::string Table(std::string_view cssClass, std::string_view rows);

/// A cell's content in the colours of a square of the board.
std::string InColors(Color background, Color text, std::string_view html);

}  // namespace qarn
