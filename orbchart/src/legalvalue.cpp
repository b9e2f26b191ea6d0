// Whether the text of an attribute is a value of its kind.
#include "legalvalue.h"

#include "messagetext.h"
#include "orbuni.h"

#include <xercesc/util/XMLChar.hpp>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

namespace orbchart {
namespace {

bool isDigit(XMLCh unit) { return unit >= u'0' && unit <= u'9'; }

/// Takes the digits from the front of a text.
TextView takeDigits(TextView& text) {
  const auto end = std::find_if_not(text.begin(), text.end(), isDigit);
  const TextView digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  return digits;
}

/// Takes a character from the front of a text if it is one of some.
bool take(TextView& text, TextView anyOf) {
  if (text.empty() || anyOf.find(text.front()) == TextView::npos)
    return false;
  text.remove_prefix(1);
  return true;
}

/// Whether a text is nothing but digits, and their number no greater than a limit.
bool isWholeNumber(TextView text, std::uint64_t most) {
  std::uint64_t number = 0;
  for (const XMLCh unit : text) {
    if (!isDigit(unit))
      return false;
    number = std::min(number * 10 + (unit - u'0'), most + 1);
  }
  return !text.empty() && number <= most;
}

bool isInteger(TextView text) {
  constexpr std::uint64_t most = std::numeric_limits<int>::max();
  return take(text, u"-") ? isWholeNumber(text, most + 1) : isWholeNumber(text, most);
}

/// A number in its parts.
struct Decimal {
  TextView whole;
  TextView fraction;
  TextView exponent;
  bool isExponentNegative;
};

bool isDecimal(TextView text, Decimal& decimal) {
  take(text, u"+-");
  decimal.whole = takeDigits(text);
  if (take(text, u"."))
    decimal.fraction = takeDigits(text);
  if (decimal.whole.empty() && decimal.fraction.empty())
    return false;
  if (!take(text, u"eE"))
    return text.empty();
  decimal.isExponentNegative = take(text, u"-");
  if (!decimal.isExponentNegative)
    take(text, u"+");
  decimal.exponent = takeDigits(text);
  return !decimal.exponent.empty() && text.empty();
}

/// The number that an exponent stands for, but for those that are beyond all doubles however long the digits are.
std::int64_t exponentOf(const Decimal& decimal) {
  constexpr std::int64_t most = std::int64_t{1} << 50U;
  std::int64_t exponent = 0;
  for (const XMLCh digit : decimal.exponent)
    exponent = std::min(exponent * 10 + (digit - u'0'), most);
  return decimal.isExponentNegative ? -exponent : exponent;
}

/// Whether a double can come near a number. One that is too small is 0, and near enough.
bool isFinite(const Decimal& decimal) {
  const auto isZero = [](XMLCh digit) { return digit == u'0'; };
  const auto leading = std::find_if_not(decimal.whole.begin(), decimal.whole.end(), isZero);
  // How many digits stand ahead of the point, once the exponent has moved it.
  std::int64_t digits = exponentOf(decimal) + (decimal.whole.end() - leading);
  if (leading == decimal.whole.end()) {
    const auto first = std::find_if_not(decimal.fraction.begin(), decimal.fraction.end(), isZero);
    if (first == decimal.fraction.end())
      return true;
    digits -= first - decimal.fraction.begin();
  }
  constexpr int mostDigits = std::numeric_limits<double>::max_exponent10 + 1;
  if (digits != mostDigits)
    return digits < mostDigits;
  // As many digits as the greatest double has: the digits themselves decide, the point behind the first of them.
  std::string text(leading, decimal.whole.end());
  text.append(decimal.fraction.begin(), decimal.fraction.end());
  text.erase(0, text.find_first_not_of('0'));
  text.insert(1, 1, '.');
  text += "e" + std::to_string(mostDigits - 1);
  double number = 0;
  return std::from_chars(text.data(), text.data() + text.size(), number).ec == std::errc();
}

bool isNumber(TextView text) {
  Decimal decimal{};
  return isDecimal(text, decimal) && isFinite(decimal);
}

bool isKeyword(const AttributeDescription& attribute, TextView text) {
  return std::any_of(attribute.keywords.begin(), attribute.keywords.end(),
                     [&](const KeywordDescription& keyword) { return keyword.text == text; });
}

} // namespace

bool isLegal(const AttributeDescription& attribute, TextView text) {
  switch (attribute.kind) {
  case AttributeKind::boolean:
  case AttributeKind::trueUnlessFalse:
    return text == OrbUni::_true || text == OrbUni::_false;
  case AttributeKind::integer:
    return isInteger(text);
  case AttributeKind::unsignedInteger:
    return isWholeNumber(text, std::numeric_limits<unsigned int>::max());
  case AttributeKind::number:
    return isNumber(text);
  case AttributeKind::keyword:
    return isKeyword(attribute, text);
  case AttributeKind::reference:
  case AttributeKind::anyReference:
    return !text.empty();
  case AttributeKind::id:
  case AttributeKind::text:
    break;
  }
  return true;
}

std::vector<std::string> wordsOf(const AttributeDescription& attribute) {
  if (attribute.kind == AttributeKind::boolean || attribute.kind == AttributeKind::trueUnlessFalse)
    return {"true", "false"};
  std::vector<std::string> words;
  if (attribute.kind == AttributeKind::keyword) {
    for (const KeywordDescription& keyword : attribute.keywords)
      words.push_back(shown(keyword.text));
  }
  return words;
}

std::string legalValues(const AttributeDescription& attribute) {
  switch (attribute.kind) {
  case AttributeKind::integer:
    return "a whole number from " + std::to_string(std::numeric_limits<int>::min()) + " to " +
           std::to_string(std::numeric_limits<int>::max());
  case AttributeKind::unsignedInteger:
    return "a whole number from 0 to " + std::to_string(std::numeric_limits<unsigned int>::max());
  case AttributeKind::number:
    return "a finite decimal number";
  default:
    return listed(wordsOf(attribute));
  }
}

bool isXmlName(TextView text) { return xercesc::XMLChar1_0::isValidNCName(text.data(), text.size()); }

} // namespace orbchart
