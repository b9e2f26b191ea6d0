// The text of numbers and of data values as it goes into a document.
#pragma once

#include "orbchartexport.h"
#include "quvaiocv.h"

#include <string>

/// A plain number of eight characters with two decimals; for hosts.
/// \ingroup tools
static constexpr QUVA_Format plainNumberFormat = {8, QUVA_Format::number, 2};

/// Turns numbers, and data values with a description of their format, into text. Only `ToString` of quvaiocv.h asks the
/// locale, for its decimal mark; the other results are the same in every locale.
///
/// The missing value is the lowest finite `double`. Dates count the seconds from the midnight that begins 14 October
/// 1582.
/// \ingroup tools
class ORBCHART_EXPORT formatter {
public:
  /// The decimal text of a whole number.
  static std::string AsString(const long& value);
  static std::string AsString(const unsigned long& value);

  /// The text of `value` in general notation: at most 16 significant digits, no trailing zeros, always a point and
  /// never a comma, an exponent where the number is very large or very small ("1e+20").
  /// With `digits` below 16 the number is rounded half up, a negative one upward too, and then cut behind that many
  /// decimals. Nothing is padded, but zeros that the cut brings to the end stay: 1.5 with two digits is "1.50", 2 with
  /// two digits is "2.00", 0.25 with no digits is "0.", the point included. A text with an exponent is not cut and
  /// keeps the half that was added (1.25e-5 with five digits is "1.75e-05"); a number that 10^digits carries past the
  /// largest double is "inf".
  static std::string AsString(const double& value, unsigned int digits);

  /// The text of a value for a document. Empty for the missing value, whatever the format, and for a type that has no
  /// text here.
  ///
  /// A text (1) is as from formattedString; a number (2 to 12, 15, 16, 17, 25, 31 to 37, 40) the number as it is,
  /// without its format; a date (20, 22, 23, 24, 28, 29, 30, 38, 39, 86) as from formattedDate; a time (21, 85) as from
  /// formattedTime. A day of the week (26) and a month (27) are as from formattedShortDate up to the value 86400, and
  /// beyond that, or when they are no number, whole dates.
  static std::string AsString(const OBS& value, const QUVA_Format& format);

  /// The text of a value as `ToString` writes it, without the blanks around it. Empty for a null value, for a format
  /// that `ToString` refuses, and for one that is all blank.
  ///
  /// The format is packed: byte 0 the decimals, byte 1 the width, byte 2 the type. For the type 1 byte 0 is the high
  /// byte of the width, and there are no decimals. A width above 40 is 40, save for the types 1 and 2; a plain number
  /// (5) is always 40 wide. The first character of a grouping text separates groups of three digits in plain numbers
  /// (5), day times (25) and percentages (31), and in nothing else.
  static std::string formattedValue(const OBS* value, int packed, const std::string* grouping);
  /// The same with the parts of the format apart.
  static std::string formattedValue(const OBS* value, int type, int width, int decimals, const std::string* grouping);

  /// The first characters of a value, as many as the format is wide, as UTF-8 that is ready for XML: "&", "<" and ">"
  /// are references. Blanks at the end stay.
  static std::string formattedString(const OBS& value, const QUVA_Format& format);

  /// A date as "1582-10-14T05:06:07.000"; empty for a date that `ToString` refuses.
  static std::string formattedDate(const double& value);
  /// A small number that stands for a part of a date, as a date of the year 1. Type 26 gives
  /// "0001-01-0<n>T00:00:00.000" with the remainder of 7 plus 1, so that 6 is the day 7; type 27
  /// "0001-<nn>-01T00:00:00.000" with the remainder of 12, or 12; type 25 "0001-01-01 hh:mm:ss.000"; any other the
  /// empty text. A remainder of a negative number is negative.
  static std::string formattedShortDate(int type, const int& value);
  /// A time as "25:06:07.500", with the milliseconds ".000" where the text has none.
  static std::string formattedTime(const double& value);

  /// Puts a separator between groups of three digits ahead of the decimal mark of the locale; where there is none,
  /// ahead of the first "%" of a percentage (31), the first blank of a day time (25), or the end. What stands ahead of
  /// the first digit is left alone.
  static void addDigitGrouping(std::string& text, char separator, QUVA_Format::FormatType type);

  /// Moves the pointers to the first and to the last character of a text past its blanks (U+0020), and gives the length
  /// that is left.
  static long trim(const char*& begin, const char*& end);
};
