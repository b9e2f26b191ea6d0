// Number text by std::to_chars, which no locale reaches.
#include "formatter.h"

#include <charconv>
#include <cmath>

namespace {

constexpr int significantDigits = 16;

template <class Number, class... Format> std::string toText(Number value, Format... format) {
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value, format...).ptr);
}

std::string generalText(double value) { return toText(value, std::chars_format::general, significantDigits); }

} // namespace

std::string formatter::AsString(const long& value) { return toText(value); }

std::string formatter::AsString(const unsigned long& value) { return toText(value); }

std::string formatter::AsString(const double& value, unsigned int digits) {
  if (digits >= significantDigits)
    return generalText(value);
  const double power = std::pow(10.0, digits);
  const std::string text = generalText((power * value + 0.5) / power);
  const auto point = text.find('.');
  const bool isCut = point != std::string::npos && text.find('e') == std::string::npos;
  return isCut ? text.substr(0, point + 1 + digits) : text;
}
