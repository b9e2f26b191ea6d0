// The text of data values: what ToString writes, and what the formatter makes of it for a document.
#include "commalocale.h"
#include "formatter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace {

using Format = QUVA_Format;

OBS of(double number) {
  OBS value;
  value.number = number;
  return value;
}

/// What ToString writes, to the character; "fails" when it does.
std::string written(double number, int type, int width, int decimals) {
  const OBS value = of(number);
  std::vector<char> buffer(static_cast<std::size_t>(width) + 3, '#');
  const Format format = {static_cast<unsigned short>(width), static_cast<Format::FormatType>(type),
                         static_cast<unsigned char>(decimals)};
  if (ToString(&value, format, buffer.data()) != 0)
    return "fails";
  EXPECT_EQ(buffer[static_cast<std::size_t>(width)], 0);
  EXPECT_EQ(buffer[static_cast<std::size_t>(width) + 1], '#') << "nothing is written past the width";
  return buffer.data();
}

/// A moment as seconds since the midnight that begins 14 October 1582.
double moment(double days, double seconds = 0) { return days * 86400 + seconds; }

constexpr double missing = std::numeric_limits<double>::lowest();
constexpr double infinite = std::numeric_limits<double>::infinity();
const double none = std::nan("");

std::string grouped(std::string text, Format::FormatType type = Format::number) {
  formatter::addDigitGrouping(text, ',', type);
  return text;
}

std::string value(double number, int type, int width, int decimals, const char* grouping = nullptr) {
  const OBS observation = of(number);
  const std::string separator = grouping == nullptr ? "" : grouping;
  return formatter::formattedValue(&observation, type, width, decimals, grouping == nullptr ? nullptr : &separator);
}

} // namespace

TEST(ToString, WritesNumbersInTheirKinds) {
  EXPECT_EQ(written(1234.5, 5, 10, 2), "   1234.50");
  EXPECT_EQ(written(-1234.5, 40, 10, 1), "   -1234.5");
  EXPECT_EQ(written(1234567.891, 3, 14, 2), "  1,234,567.89");
  EXPECT_EQ(written(-1234.5, 4, 10, 2), "-$1,234.50");
  EXPECT_EQ(written(12.5, 31, 8, 1), "   12.5%");
  EXPECT_EQ(written(-12.5, 15, 8, 2), "-0012.50");
  EXPECT_EQ(written(1234.5, 16, 7, 0), "0001234");
  EXPECT_EQ(written(-1, 16, 4, 0), "****");
  EXPECT_EQ(written(1234.5, 17, 9, 2), " 1.23E+03");
  EXPECT_EQ(written(missing, 5, 4, 0), "    ");
}

TEST(ToString, GivesUpGroupingThenDecimalsThenTheNumber) {
  EXPECT_EQ(written(1234.56, 3, 7, 2), "1234.56");
  EXPECT_EQ(written(1234.56, 3, 6, 2), "1234.6");
  EXPECT_EQ(written(1234.56, 5, 5, 2), " 1235");
  EXPECT_EQ(written(1234.56, 5, 3, 2), "***");
  EXPECT_EQ(written(std::numeric_limits<double>::max(), 5, 40, 255), std::string(40, '*'));
  EXPECT_EQ(written(std::numeric_limits<double>::max(), 5, 400, 2).substr(87, 5), " 1797");
  for (const double number : {infinite, -infinite, none}) {
    for (const int type : {3, 5, 15, 16, 17, 21, 25, 31, 85})
      EXPECT_EQ(written(number, type, 5, 2), "*****") << type;
  }
  EXPECT_EQ(written(5, 5, 0, 2), "");
}

TEST(ToString, WritesDatesOfTheGregorianCalendar) {
  EXPECT_EQ(written(0, 20, 11, 0), "14-OCT-1582");
  EXPECT_EQ(written(0, 20, 9, 0), "14-OCT-82");
  EXPECT_EQ(written(0, 20, 8, 0), "********");
  EXPECT_EQ(written(moment(152385), 39, 10, 2), "2000/01/01");
  EXPECT_EQ(written(moment(152385 + 59), 23, 10, 0), "02/29/2000") << "a leap day of a century";
  EXPECT_EQ(written(moment(115861 + 60), 38, 10, 0), "02.03.1900") << "and a century without one";
  EXPECT_EQ(written(moment(152385 + 366, 86399), 24, 7, 0), "2001001");
  EXPECT_EQ(written(moment(152385 + 365), 24, 7, 0), "2000366");
  EXPECT_EQ(written(moment(152385 + 200), 28, 8, 0), "JUL 2000");
  EXPECT_EQ(written(moment(152385 + 200), 29, 6, 0), "3 Q 00");
  EXPECT_EQ(written(moment(152385 + 7), 30, 10, 0), " 2 WK 2000");
  EXPECT_EQ(written(moment(152385, 3661.5), 22, 24, 3), "01-JAN-2000 01:01:01.500");
  EXPECT_EQ(written(moment(152385, 86399.9996), 22, 24, 3), "02-JAN-2000 00:00:00.000") << "seconds carry";
  EXPECT_EQ(written(moment(152385, 3661.5), 86, 19, 3), "2000-01-01 01:01:02");
  EXPECT_EQ(written(moment(152385, 3661.5), 86, 16, 3), "2000-01-01 01:01");
  EXPECT_EQ(written(moment(3074324), 39, 10, 0), "9999/12/31");
  for (const double number : {-1.0, moment(3074325), infinite, none, 1e300}) {
    for (const int type : {20, 22, 23, 24, 28, 29, 30, 38, 39, 86})
      EXPECT_EQ(written(number, type, 24, 3), "fails") << type;
  }
}

TEST(ToString, WritesTimesAndNames) {
  EXPECT_EQ(written(90367.5, 21, 12, 3), "25:06:07.500");
  EXPECT_EQ(written(90367.5, 21, 8, 2), "25:06:08");
  EXPECT_EQ(written(-90367, 21, 9, 0), "-25:06:07");
  EXPECT_EQ(written(90367, 21, 5, 2), "25:06");
  EXPECT_EQ(written(90367, 25, 12, 1), "1 01:06:07.0");
  EXPECT_EQ(written(90367, 85, 7, 0), "1506:07");
  EXPECT_EQ(written(1, 26, 9, 0), "Sunday   ");
  EXPECT_EQ(written(12, 27, 3, 0), "Dec");
  for (const double number : {0.0, 13.0, none})
    EXPECT_EQ(written(number, 27, 3, 0), "fails");
  for (const int type : {0, 13, 14, 18, 19, 41, 84, 87, 255})
    EXPECT_EQ(written(1, type, 8, 2), "fails") << type;
}

TEST(ToString, TakesTheDecimalMarkOfTheLocale) {
  test::inCommaLocale([] {
    EXPECT_EQ(written(1234.56, 5, 10, 2), "   1234,56");
    EXPECT_EQ(written(1234.56, 5, 5, 2), " 1235");
    EXPECT_EQ(written(1234567.891, 3, 14, 2), "  1.234.567,89");
    EXPECT_EQ(written(-12.5, 15, 8, 2), "-0012,50");
    EXPECT_EQ(written(1234.5, 17, 9, 2), " 1,23E+03");
    EXPECT_EQ(written(90367.5, 21, 12, 3), "25:06:07,500");
    EXPECT_EQ(grouped("1234567,8912"), "1,234,567,8912");
    EXPECT_EQ(formatter::formattedTime(3661.5), "01:01:01.500");
    EXPECT_EQ(formatter::formattedDate(moment(152385, 3661.5)), "2000-01-01T01:01:01,500") << "a date keeps its mark";
  });
}

TEST(ToString, WritesCharactersAndRefusesNull) {
  OBS text;
  std::memcpy(text.text, "ab  c  d", 8);
  char buffer[9];
  EXPECT_EQ(ToString(&text, {8, Format::text, 0}, buffer), 0);
  EXPECT_STREQ(buffer, "ab  c  d");
  EXPECT_EQ(ToString(&text, {5, Format::hexadecimal, 0}, buffer), 0);
  EXPECT_STREQ(buffer, "6162 ");
  EXPECT_NE(ToString(nullptr, {8, Format::number, 2}, buffer), 0);
  EXPECT_NE(ToString(&text, {8, Format::number, 2}, nullptr), 0);
}

TEST(Formatter, GroupsDigitsOfTheIntegerPart) {
  EXPECT_EQ(grouped("123"), "123");
  EXPECT_EQ(grouped("1234"), "1,234");
  EXPECT_EQ(grouped("-1234567.8912"), "-1,234,567.8912");
  EXPECT_EQ(grouped("-123.5"), "-123.5");
  EXPECT_EQ(grouped("$123456"), "$123,456");
  EXPECT_EQ(grouped("1234%"), "12,34%") << "only a percentage ends at its sign";
  EXPECT_EQ(grouped("1234%", Format::percentage), "1,234%");
  EXPECT_EQ(grouped("1234 01:02:03", Format::dayTime), "1,234 01:02:03");
  EXPECT_EQ(grouped(""), "");
  EXPECT_EQ(grouped("none"), "none");
}

TEST(Formatter, TrimsWhatToStringWrites) {
  EXPECT_EQ(value(1234.5, 5, 3, 1), "1234.5") << "a plain number is always 40 wide";
  EXPECT_EQ(value(1234.5, 5, 3, 1, ","), "1,234.5");
  EXPECT_EQ(value(1234.5, 5, 3, 1, ""), "1234.5");
  EXPECT_EQ(value(1234.5, 31, 260, 1, "'"), "1'234.5%");
  EXPECT_EQ(value(1234 * 86400.0, 25, 40, 0, ","), "1,234 00:00:00");
  EXPECT_EQ(value(1234.5, 3, 40, 1, "'"), "1,234.5") << "its own separators alone";
  EXPECT_EQ(value(missing, 5, 8, 2), "");
  EXPECT_EQ(value(1, 0, 8, 2), "");
  EXPECT_EQ(formatter::formattedValue(nullptr, 5, 8, 2, nullptr), "");
  OBS text[40];
  std::memset(text, 'x', sizeof text);
  EXPECT_EQ(formatter::formattedValue(text, 1, 300, 0, nullptr), std::string(300, 'x')) << "a text keeps its width";
  const char* begin = "  a b ";
  const char* end = begin + 5;
  EXPECT_EQ(formatter::trim(begin, end), 3);
  EXPECT_EQ(std::string(begin, end + 1), "a b");
}

TEST(Formatter, GivesDatesAndTimesAsIso8601) {
  EXPECT_EQ(formatter::formattedDate(moment(152385, 3661.5)), "2000-01-01T01:01:01.500");
  EXPECT_EQ(formatter::formattedDate(-1), "");
  EXPECT_EQ(formatter::formattedDate(none), "");
  EXPECT_EQ(formatter::formattedTime(3661.5), "01:01:01.500");
  EXPECT_EQ(formatter::formattedTime(1e9), "277777:46:40.000") << "what has no room for decimals gets them";
  EXPECT_EQ(formatter::formattedTime(none), "************");
  EXPECT_EQ(formatter::formattedShortDate(26, 6), "0001-01-07T00:00:00.000");
  EXPECT_EQ(formatter::formattedShortDate(26, -3), "0001-01-0-2T00:00:00.000");
  EXPECT_EQ(formatter::formattedShortDate(27, 12), "0001-12-01T00:00:00.000");
  EXPECT_EQ(formatter::formattedShortDate(27, 13), "0001-01-01T00:00:00.000");
  EXPECT_EQ(formatter::formattedShortDate(25, 360061), "0001-01-01 100:01:01.000");
  EXPECT_EQ(formatter::formattedShortDate(24, 1), "");
}

TEST(Formatter, ChoosesTheFormOfAType) {
  const auto text = [](double number, int type) {
    return formatter::AsString(of(number), {8, static_cast<Format::FormatType>(type), 2});
  };
  for (const int type : {2, 3, 12, 15, 16, 17, 25, 31, 32, 37, 40})
    EXPECT_EQ(text(0.1, type), "0.1") << "the number without its format, type " << type;
  for (const int type : {20, 22, 23, 24, 28, 29, 30, 38, 39, 86})
    EXPECT_EQ(text(0, type), "1582-10-14T00:00:00.000") << type;
  for (const int type : {21, 85})
    EXPECT_EQ(text(61, type), "00:01:01.000") << type;
  for (const int type : {0, 13, 14, 18, 19, 41, 84, 87, 200})
    EXPECT_EQ(text(1, type), "") << type;
  EXPECT_EQ(text(86400, 26), "0001-01-07T00:00:00.000");
  EXPECT_EQ(text(86401, 26), "1582-10-15T00:00:01.000") << "a whole date";
  EXPECT_EQ(text(none, 27), "");
  EXPECT_EQ(text(-1e300, 27), "0001--8-01T00:00:00.000") << "held within an int";
  for (const int type : {1, 5, 20, 26})
    EXPECT_EQ(text(missing, type), "") << type;

  OBS characters;
  std::memcpy(characters.text, "a<b>&c\" ", 8);
  EXPECT_EQ(formatter::formattedString(characters, {8, Format::text, 0}), "a&lt;b&gt;&amp;c\" ");
  EXPECT_EQ(formatter::AsString(characters, {3, Format::text, 0}), "a&lt;b");
  EXPECT_EQ(plainNumberFormat.width, 8);
}
