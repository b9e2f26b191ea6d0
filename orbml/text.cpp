// Text for people.
#include "text.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

bool showsColours() {
  static const bool shows = [] {
    const char* terminal = std::getenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && std::getenv("NO_COLOR") == nullptr &&
           (terminal == nullptr || std::string_view(terminal) != "dumb");
  }();
  return shows;
}

std::string escaped(unsigned char byte) {
  std::array<char, sizeof "\\x00"> text{};
  std::snprintf(text.data(), text.size(), "\\x%02x", static_cast<unsigned int>(byte));
  return text.data();
}

bool isControl(unsigned char byte) {
  constexpr unsigned char firstPrintable = 0x20;
  constexpr unsigned char remove = 0x7F;
  return byte < firstPrintable || byte == remove;
}

/// Whether a control character of two bytes, U+0080 to U+009F, begins at a place.
bool beginsWideControl(std::string_view text, std::size_t at) {
  return text[at] == '\xC2' && at + 1 < text.size() && (static_cast<unsigned char>(text[at + 1]) & 0xE0U) == 0x80U;
}

} // namespace

std::string printable(std::string_view text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (beginsWideControl(text, at))
      result += escaped(static_cast<unsigned char>(text[++at]));
    else if (isControl(static_cast<unsigned char>(text[at])))
      result += escaped(static_cast<unsigned char>(text[at]));
    else
      result += text[at];
  }
  return result;
}

std::string coloured(std::string_view text, Colour colour) {
  if (!showsColours())
    return std::string(text);
  const char* code = colour == Colour::red ? "1;31" : colour == Colour::yellow ? "1;33" : "1";
  return std::string("\x1b[") + code + "m" + std::string(text) + "\x1b[0m";
}

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string meant(const std::string& near) { return near.empty() ? "" : "; did you mean \"" + printable(near) + "\"?"; }
