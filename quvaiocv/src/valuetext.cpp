// The text of data values.
#include "quvaiocv.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace {

constexpr double missingValue = std::numeric_limits<double>::lowest();
constexpr const char* monthNames[] = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};
constexpr const char* weekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

/// The text of a value while it is made, never longer than the longest number in fixed notation.
class Text {
public:
  void append(std::string_view characters) {
    std::memcpy(characters_ + length_, characters.data(), characters.size());
    length_ += characters.size();
  }
  void append(char character) { characters_[length_++] = character; }
  /// Appends a whole number, with zeros in front up to a number of digits.
  void appendPadded(long long value, int count) {
    char digits[24];
    const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    for (auto missing = count - (end - digits); missing > 0; --missing)
      append('0');
    append(std::string_view(digits, static_cast<std::size_t>(end - digits)));
  }
  void appendNumber(double value, std::chars_format form, int decimals) {
    char* const end = std::to_chars(characters_ + length_, characters_ + sizeof characters_, value, form, decimals).ptr;
    length_ = static_cast<std::size_t>(end - characters_);
  }
  void clear() { length_ = 0; }
  std::string_view view() const { return {characters_, length_}; }

private:
  char characters_[1024];
  std::size_t length_ = 0;
};

char decimalMark() { return *std::localeconv()->decimal_point; }

bool writeRight(std::string_view text, std::size_t width, char* buffer, char fill = ' ') {
  if (text.size() > width)
    return false;
  std::memset(buffer, fill, width - text.size());
  std::memcpy(buffer + width - text.size(), text.data(), text.size());
  return true;
}

void writeAsterisks(std::size_t width, char* buffer) { std::memset(buffer, '*', width); }

/// A number in fixed notation, with what its kind puts around it.
void appendFixed(Text& text, double value, int decimals, std::string_view prefix, char separator,
                 std::string_view suffix) {
  Text digits;
  digits.appendNumber(std::fabs(value), std::chars_format::fixed, decimals);
  const std::string_view all = digits.view();
  const std::size_t whole = std::min(all.find('.'), all.size());
  if (std::signbit(value))
    text.append('-');
  text.append(prefix);
  for (std::size_t at = 0; at < whole; ++at) {
    if (separator != 0 && at != 0 && (whole - at) % 3 == 0)
      text.append(separator);
    text.append(all[at]);
  }
  if (whole < all.size()) {
    text.append(decimalMark());
    text.append(all.substr(whole + 1));
  }
  text.append(suffix);
}

void writeFixed(double value, const QUVA_Format& format, char* buffer, std::string_view prefix, char separator,
                std::string_view suffix) {
  for (int decimals = format.decimals; std::isfinite(value) && decimals >= 0; --decimals) {
    for (const char grouping : {separator, '\0'}) {
      Text text;
      appendFixed(text, value, decimals, prefix, grouping, suffix);
      if (writeRight(text.view(), format.width, buffer))
        return;
      if (separator == 0)
        break;
    }
  }
  writeAsterisks(format.width, buffer);
}

/// A plain number is what is written most, and needs no copy.
void writeNumber(double value, const QUVA_Format& format, char* buffer) {
  Text text;
  for (int decimals = format.decimals; std::isfinite(value) && decimals >= 0; --decimals) {
    text.clear();
    text.appendNumber(value, std::chars_format::fixed, decimals);
    if (!writeRight(text.view(), format.width, buffer))
      continue;
    const char mark = decimalMark();
    if (mark != '.' && decimals != 0)
      buffer[format.width - decimals - 1] = mark;
    return;
  }
  writeAsterisks(format.width, buffer);
}

void writeExponent(double value, const QUVA_Format& format, char* buffer) {
  for (int decimals = format.decimals; std::isfinite(value) && decimals >= 0; --decimals) {
    Text text;
    text.appendNumber(value, std::chars_format::scientific, decimals);
    std::string form(text.view());
    form[form.find('e')] = 'E';
    if (const std::size_t point = form.find('.'); point != std::string::npos)
      form[point] = decimalMark();
    if (writeRight(form, format.width, buffer))
      return;
  }
  writeAsterisks(format.width, buffer);
}

void writeZeroPadded(double value, const QUVA_Format& format, char* buffer) {
  writeNumber(value, format, buffer);
  std::size_t first = 0;
  while (first < format.width && buffer[first] == ' ')
    ++first;
  const bool isNegative = first < format.width && buffer[first] == '-';
  if (first == 0)
    return;
  std::memset(buffer, '0', first + (isNegative ? 1 : 0));
  if (isNegative)
    buffer[0] = '-';
}

void writeDigits(double value, const QUVA_Format& format, char* buffer) {
  Text text;
  if (std::isfinite(value))
    text.appendNumber(value, std::chars_format::fixed, 0);
  if (text.view().empty() || text.view()[0] == '-' || !writeRight(text.view(), format.width, buffer, '0'))
    writeAsterisks(format.width, buffer);
}

void writeText(const OBS* value, const QUVA_Format& format, char* buffer) { std::memcpy(buffer, value, format.width); }

void writeHexadecimal(const OBS* value, const QUVA_Format& format, char* buffer) {
  std::memset(buffer, ' ', format.width);
  const auto* bytes = reinterpret_cast<const unsigned char*>(value);
  for (std::size_t at = 0; at + 1 < format.width; at += 2) {
    buffer[at] = "0123456789ABCDEF"[bytes[at / 2] >> 4U];
    buffer[at + 1] = "0123456789ABCDEF"[bytes[at / 2] & 0xFU];
  }
}

/// One of some names by its number, counted from 1, cut to the width.
template <std::size_t count>
int writeName(double value, const QUVA_Format& format, char* buffer, const char* const (&names)[count]) {
  if (!(value >= 1 && value < count + 1))
    return 1;
  const std::string_view name = names[static_cast<std::size_t>(value) - 1];
  std::memset(buffer, ' ', format.width);
  std::memcpy(buffer, name.data(), std::min<std::size_t>(name.size(), format.width));
  return 0;
}

/// A number of seconds in whole units of its last decimal.
struct Seconds {
  Seconds(double value, int decimalCount) : decimals(std::min(decimalCount, 6)) {
    for (int i = 0; i < decimals; ++i)
      unit *= 10;
    units = std::llround(std::fabs(value) * static_cast<double>(unit));
  }
  long long whole() const { return units / unit; }
  /// Appends the seconds of a minute, with their decimals.
  void appendTo(Text& text) const {
    text.appendPadded(whole() % 60, 2);
    if (decimals != 0) {
      text.append(decimalMark());
      text.appendPadded(units % unit, decimals);
    }
  }

  int decimals;
  long long unit = 1;
  long long units = 0;
};

/// The largest number of seconds that a time may have: larger ones are no time that anybody measures.
constexpr double mostSeconds = 1e12;

/// Writes a time with as many decimals as find room, or without its seconds.
template <class Append>
int writeTime(double value, const QUVA_Format& format, char* buffer, Append append, bool hasHours) {
  if (!(std::fabs(value) <= mostSeconds)) {
    writeAsterisks(format.width, buffer);
    return 0;
  }
  for (int decimals = std::min<int>(format.decimals, 6); decimals >= (hasHours ? -1 : 0); --decimals) {
    const Seconds seconds(value, std::max(decimals, 0));
    Text text;
    if (std::signbit(value) && seconds.units != 0)
      text.append('-');
    append(text, seconds);
    if (decimals >= 0) {
      text.append(':');
      seconds.appendTo(text);
    }
    if (writeRight(text.view(), format.width, buffer))
      return 0;
  }
  writeAsterisks(format.width, buffer);
  return 0;
}

void appendHours(Text& text, const Seconds& seconds) {
  text.appendPadded(seconds.whole() / 3600, 2);
  text.append(':');
  text.appendPadded(seconds.whole() % 3600 / 60, 2);
}

void appendDaysAndHours(Text& text, const Seconds& seconds) {
  text.appendPadded(seconds.whole() / 86400, 1);
  text.append(' ');
  text.appendPadded(seconds.whole() % 86400 / 3600, 2);
  text.append(':');
  text.appendPadded(seconds.whole() % 3600 / 60, 2);
}

void appendMinutes(Text& text, const Seconds& seconds) { text.appendPadded(seconds.whole() / 60, 2); }

/// A day of the Gregorian calendar.
struct Day {
  int year;
  int month;
  int day;
  int dayOfYear;
};

/// The days from 1 March of the year 0 to 14 October 1582, where the count of seconds begins.
constexpr long long epoch = 578040;
constexpr long long secondsOfADay = 86400;

Day dayOf(long long daysSinceEpoch) {
  // Years begin in March here, so that a leap day is the last of its year.
  const long long days = daysSinceEpoch + epoch;
  const long long era = days / 146097;
  const long long dayOfEra = days % 146097;
  const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const long long shifted = (5 * dayOfYear + 2) / 153;
  const int month = static_cast<int>(shifted < 10 ? shifted + 3 : shifted - 9);
  const int year = static_cast<int>(era * 400 + yearOfEra + (month <= 2 ? 1 : 0));
  const bool isLeap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  constexpr int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const int day = static_cast<int>(dayOfYear - (153 * shifted + 2) / 5 + 1);
  return {year, month, day, before[month - 1] + day + (isLeap && month > 2 ? 1 : 0)};
}

void appendAbbreviation(Text& text, int month) {
  for (int i = 0; i < 3; ++i)
    text.append(static_cast<char>(monthNames[month - 1][i] & ~0x20)); // capitals
}

void appendYear(Text& text, const Day& day, bool isLong) {
  text.appendPadded(isLong ? day.year : day.year % 100, isLong ? 4 : 2);
}

void appendThree(Text& text, int first, char separator, int second) {
  text.appendPadded(first, 2);
  text.append(separator);
  text.appendPadded(second, 2);
  text.append(separator);
}

void appendDate(Text& text, QUVA_Format::FormatType type, const Day& day, bool isLong) {
  switch (type) {
  case QUVA_Format::americanDate:
    appendThree(text, day.month, '/', day.day);
    appendYear(text, day, isLong);
    break;
  case QUVA_Format::europeanDate:
    appendThree(text, day.day, '.', day.month);
    appendYear(text, day, isLong);
    break;
  case QUVA_Format::julianDate:
    appendYear(text, day, isLong);
    text.appendPadded(day.dayOfYear, 3);
    break;
  case QUVA_Format::monthYear:
    appendAbbreviation(text, day.month);
    text.append(' ');
    appendYear(text, day, isLong);
    break;
  case QUVA_Format::quarterYear:
    text.appendPadded((day.month + 2) / 3, 1);
    text.append(" Q ");
    appendYear(text, day, isLong);
    break;
  case QUVA_Format::weekYear:
    text.appendPadded((day.dayOfYear + 6) / 7, 1);
    text.append(" WK ");
    appendYear(text, day, isLong);
    break;
  case QUVA_Format::sortableDate:
  case QUVA_Format::sortableDateTime: {
    const char separator = type == QUVA_Format::sortableDate ? '/' : '-';
    appendYear(text, day, isLong);
    text.append(separator);
    text.appendPadded(day.month, 2);
    text.append(separator);
    text.appendPadded(day.day, 2);
    break;
  }
  default: // date, dateTime
    text.appendPadded(day.day, 2);
    text.append('-');
    appendAbbreviation(text, day.month);
    text.append('-');
    appendYear(text, day, isLong);
  }
}

/// A date, and for two of the types the time of the day behind it.
int writeDate(double value, const QUVA_Format& format, char* buffer) {
  constexpr double endOfTheYear9999 = 3'074'325.0 * secondsOfADay; // in days since the epoch
  if (!(value >= 0 && value < endOfTheYear9999))
    return 1;
  const bool hasTime = format.type == QUVA_Format::dateTime || format.type == QUVA_Format::sortableDateTime;
  for (int decimals = hasTime ? std::min<int>(format.decimals, 6) : 0; decimals >= (hasTime ? -1 : 0); --decimals) {
    const Seconds seconds = hasTime ? Seconds(value, std::max(decimals, 0)) : Seconds(std::floor(value), 0);
    const Day day = dayOf(seconds.whole() / secondsOfADay);
    if (day.year > 9999)
      return 1;
    for (const bool isLong : {true, false}) {
      if (hasTime && !isLong)
        continue;
      Text text;
      appendDate(text, format.type, day, isLong);
      if (hasTime) {
        Text time;
        const long long ofTheDay = seconds.whole() % secondsOfADay;
        text.append(' ');
        text.appendPadded(ofTheDay / 3600, 2);
        text.append(':');
        text.appendPadded(ofTheDay % 3600 / 60, 2);
        if (decimals >= 0) {
          text.append(':');
          seconds.appendTo(text);
        }
      }
      if (writeRight(text.view(), format.width, buffer))
        return 0;
    }
  }
  writeAsterisks(format.width, buffer);
  return 0;
}

} // namespace

int ToString(const OBS* value, const QUVA_Format& format, char* buffer) {
  if (value == nullptr || buffer == nullptr)
    return 1;
  buffer[format.width] = 0;
  switch (static_cast<int>(format.type)) {
  case QUVA_Format::text:
    writeText(value, format, buffer);
    return 0;
  case QUVA_Format::hexadecimal:
    writeHexadecimal(value, format, buffer);
    return 0;
  default:
    break;
  }
  const double number = value->number;
  if (number == missingValue) {
    std::memset(buffer, ' ', format.width);
    return 0;
  }
  const char separator = decimalMark() == ',' ? '.' : ',';
  switch (static_cast<int>(format.type)) {
  case QUVA_Format::number:
  case 6:
  case 7:
  case 8:
  case 9:
  case 10:
  case 11:
  case 12:
  case 33:
  case 34:
  case 35:
  case 36:
  case 37:
  case 40:
    writeNumber(number, format, buffer);
    return 0;
  case QUVA_Format::comma:
  case QUVA_Format::point:
    writeFixed(number, format, buffer, "", separator, "");
    return 0;
  case QUVA_Format::dollar:
    writeFixed(number, format, buffer, "$", separator, "");
    return 0;
  case QUVA_Format::percentage:
    writeFixed(number, format, buffer, "", 0, "%");
    return 0;
  case QUVA_Format::zeroPadded:
    writeZeroPadded(number, format, buffer);
    return 0;
  case QUVA_Format::digits:
    writeDigits(number, format, buffer);
    return 0;
  case QUVA_Format::exponent:
    writeExponent(number, format, buffer);
    return 0;
  case QUVA_Format::time:
    return writeTime(number, format, buffer, appendHours, true);
  case QUVA_Format::dayTime:
    return writeTime(number, format, buffer, appendDaysAndHours, true);
  case QUVA_Format::minuteTime:
    return writeTime(number, format, buffer, appendMinutes, false);
  case QUVA_Format::weekday:
    return writeName(number, format, buffer, weekdayNames);
  case QUVA_Format::month:
    return writeName(number, format, buffer, monthNames);
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
    return writeDate(number, format, buffer);
  default:
    return 1;
  }
}
