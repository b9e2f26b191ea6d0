// The text of numbers as it goes into a document, the same in every locale.
#pragma once

#include "orbchartexport.h"

#include <string>

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
};
