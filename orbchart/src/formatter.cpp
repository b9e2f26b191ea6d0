// The text of numbers and of data values. Numbers go by std::to_chars, which no locale reaches.
#include "formatter.h"

#include "chartstring.h"
#include "domprintformattarget.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <sstream>
#include <string_view>
#include <vector>

using xercesc::XMLFormatter;

namespace {

constexpr int significantDigits = 16;

template <class Number, class... Format> std::string toText(Number value, Format... format) {
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value, format...).ptr);
}

std::string generalText(double value) { return toText(value, std::chars_format::general, significantDigits); }

/// The types that take grouping, as a set of bits.
constexpr unsigned int groupedTypes =
    1U << QUVA_Format::number | 1U << QUVA_Format::dayTime | 1U << QUVA_Format::percentage;
constexpr unsigned int widestNumber = 40;

std::string formattedNumber(double value, int type, int width, int decimals) {
  OBS observation;
  observation.number = value;
  return formatter::formattedValue(&observation, type, width, decimals, nullptr);
}

/// The whole part of a number, held within what an int can hold; 0 for one that is none.
int wholePart(double value) {
  constexpr double least = std::numeric_limits<int>::min();
  constexpr double most = std::numeric_limits<int>::max();
  return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, least, most));
}

/// Three whole numbers, each with two digits at least.
std::string clockText(int hours, int minutes, int seconds) {
  char text[48];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d", hours, minutes, seconds);
  return text;
}

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

std::string formatter::AsString(const OBS& value, const QUVA_Format& format) {
  const double number = value.number;
  if (number == std::numeric_limits<double>::lowest())
    return "";
  const int type = format.type;
  switch (type) {
  case QUVA_Format::text:
    return formattedString(value, format);
  case QUVA_Format::time:
  case QUVA_Format::minuteTime:
    return formattedTime(number);
  case QUVA_Format::weekday:
  case QUVA_Format::month:
    return number > 86400.0 || std::isnan(number) ? formattedDate(number) : formattedShortDate(type, wholePart(number));
  case QUVA_Format::date:
  case QUVA_Format::dateTime:
  case QUVA_Format::americanDate:
  case QUVA_Format::julianDate:
  case QUVA_Format::monthYear:
  case QUVA_Format::quarterYear:
  case QUVA_Format::weekYear:
  case QUVA_Format::europeanDate:
  case QUVA_Format::sortableDate:
  case QUVA_Format::sortableDateTime:
    return formattedDate(number);
  default:
    break;
  }
  const bool isNumber = (type >= 2 && type <= 12) || (type >= 15 && type <= 17) || type == QUVA_Format::dayTime ||
                        (type >= 31 && type <= 37) || type == 40;
  return isNumber ? AsString(number, 16) : "";
}

std::string formatter::formattedValue(const OBS* value, int packed, const std::string* grouping) {
  const unsigned int low = static_cast<unsigned int>(packed) & 0xFFU;
  unsigned int width = static_cast<unsigned int>(packed) >> 8U & 0xFFU;
  const auto type = static_cast<QUVA_Format::FormatType>(static_cast<unsigned int>(packed) >> 16U & 0xFFU);
  unsigned int decimals = low;
  if (width > widestNumber && type != QUVA_Format::text && type != QUVA_Format::hexadecimal)
    width = widestNumber;
  if (type == QUVA_Format::text) {
    decimals = 0;
    width += low * 256;
  } else if (type == QUVA_Format::number) {
    width = widestNumber;
  }
  if (value == nullptr || width == 0)
    return "";

  char narrow[widestNumber + 1];
  std::vector<char> wide(width > widestNumber ? width + 1 : 0);
  char* const buffer = wide.empty() ? narrow : wide.data();
  const QUVA_Format format = {static_cast<unsigned short>(width), type, static_cast<unsigned char>(decimals)};
  if (ToString(value, format, buffer) != 0)
    return "";
  const char* begin = buffer;
  const char* end = buffer + width - 1;
  const long length = trim(begin, end);
  std::string result(begin, static_cast<std::size_t>(length));
  if (grouping != nullptr && !grouping->empty() && type < 32 && (groupedTypes >> type & 1U) != 0)
    addDigitGrouping(result, grouping->front(), type);
  return result;
}

std::string formatter::formattedValue(const OBS* value, int type, int width, int decimals,
                                      const std::string* grouping) {
  if (width > static_cast<int>(widestNumber) && type != QUVA_Format::text && type != QUVA_Format::hexadecimal)
    width = widestNumber;
  const unsigned int high = static_cast<unsigned int>(width) >> 8U & 0xFFU;
  const unsigned int low = static_cast<unsigned int>(width) & 0xFFU;
  const unsigned int kind = (static_cast<unsigned int>(type) & 0xFFU) << 16U;
  const unsigned int packed = type == QUVA_Format::text
                                  ? kind | low << 8U | high
                                  : high << 24U | kind | low << 8U | (static_cast<unsigned int>(decimals) & 0xFFU);
  return formattedValue(value, static_cast<int>(packed), grouping);
}

std::string formatter::formattedString(const OBS& value, const QUVA_Format& format) {
  std::ostringstream stream;
  try {
    xercesc::XMLPlatformUtils::Initialize(); // counted: the host may not have done it
    {
      const ChartString text(std::string(reinterpret_cast<const char*>(&value), format.width).c_str());
      DOMPrintFormatTarget target(stream);
      XMLFormatter output(u"UTF-8", u"1.0", &target, XMLFormatter::CharEscapes, XMLFormatter::UnRep_Fail);
      if (!text.empty())
        output.formatBuf(text.xc_str(), text.length());
    }
    xercesc::XMLPlatformUtils::Terminate();
  } catch (...) { // what has been written until then is the result
  }
  return std::move(stream).str();
}

std::string formatter::formattedDate(const double& value) {
  std::string result = formattedNumber(value, QUVA_Format::sortableDate, 10, 2);
  const std::string dateTime = formattedNumber(value, QUVA_Format::dateTime, 24, 3);
  if (result.size() < 10)
    return result;
  result[4] = '-';
  result[7] = '-';
  if (dateTime.size() >= 24)
    result.append("T").append(dateTime, 12, 13);
  return result;
}

std::string formatter::formattedShortDate(int type, const int& value) {
  char text[64];
  switch (type) {
  case QUVA_Format::weekday:
    std::snprintf(text, sizeof text, "0001-01-0%dT00:00:00.000", value % 7 + 1);
    return text;
  case QUVA_Format::month:
    std::snprintf(text, sizeof text, "0001-%02d-01T00:00:00.000", value % 12 == 0 ? 12 : value % 12);
    return text;
  case QUVA_Format::dayTime:
    return "0001-01-01 " + clockText(value / 3600, value % 3600 / 60, value % 60) + ".000";
  default:
    return "";
  }
}

std::string formatter::formattedTime(const double& value) {
  std::string result = formattedNumber(value, QUVA_Format::time, 12, 3);
  const std::size_t first = result.find(':');
  if (first == std::string::npos)
    return result;
  const std::size_t second = result.find(':', first + 1);
  if (second == std::string::npos) {
    char seconds[24];
    std::snprintf(seconds, sizeof seconds, ":%02d.000", static_cast<int>(std::fmod(std::trunc(value), 86400.0)) % 60);
    return result + seconds;
  }
  const std::size_t comma = result.find(',', second);
  if (comma != std::string::npos)
    result[comma] = '.';
  if (result.find('.', second) == std::string::npos)
    result += ".000";
  return result;
}

void formatter::addDigitGrouping(std::string& text, char separator, QUVA_Format::FormatType type) {
  std::size_t end = text.find(std::localeconv()->decimal_point);
  if (end == std::string::npos && type == QUVA_Format::percentage)
    end = text.find('%');
  if (end == std::string::npos && type == QUVA_Format::dayTime)
    end = text.find(' ');
  end = std::min(end, text.size());
  const std::size_t first = text.find_first_of("0123456789");
  if (first == std::string::npos || end < first + 4 || end < 4)
    return;
  // The positions are those of the text before: each separator goes to the left of the one before it.
  for (std::size_t at = end - 3; at > first; at -= 3) {
    text.insert(at, 1, separator);
    if (at < 4)
      return;
  }
}

long formatter::trim(const char*& begin, const char*& end) {
  while (begin <= end && *begin == ' ')
    ++begin;
  while (end >= begin && *end == ' ')
    --end;
  return end - begin + 1;
}
