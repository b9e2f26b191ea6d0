// Text for people: what is safe to show, what is coloured, and how things are counted.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// A text on one line that does nothing to a terminal: control characters stand there as "\x1b" and the like.
std::string printable(std::string_view text);

enum class Colour { red, yellow, bold };
/// A text in a colour where standard output is a terminal that shows some and NO_COLOR does not forbid it.
std::string coloured(std::string_view text, Colour colour);

/// "1 error", "2 errors".
std::string counted(std::size_t count, const std::string& noun);

/// " did you mean ...?" behind a message, or nothing.
std::string meant(const std::string& near);
