// The library's string: a UTF-16 text and its English form, with the conversions that attributes need.
#pragma once

#include "orbchartdom.h"
#include "orbchartexport.h"

#include <string>

/// Two zero-terminated UTF-16 buffers: the text, which every operation reads unless it says otherwise, and its English
/// form, which only toUTF8ForEng() reads. Both are null in the default state, and null is not the empty text:
/// xc_str() tells them apart.
///
/// The two run side by side but may drift apart: an operation says which of them it changes, and "both" where it says
/// nothing. An argument may lie in the object's own buffers. A null argument is a text that is not there; it is
/// tolerated everywhere. Nothing raises. The class works before XMLPlatformUtils::Initialize.
///
/// A `const char*` is in the generic encoding, which is UTF-8. Bytes that are not, and surrogates that stand alone, are
/// left out on the way between UTF-8 and UTF-16.
/// \ingroup tools
class ORBCHART_EXPORT ChartString {
public:
  ChartString();
  ChartString(const ChartString& other);
  /// Leaves `other` in the default state.
  ChartString(ChartString&& other) noexcept;
  ChartString(const XMLCh* text);
  ChartString(const XMLCh* text, const XMLCh* english);
  ChartString(const char* text);
  /// In the generic encoding; an empty argument leaves its buffer null.
  ChartString(const std::string& text, const std::string& english);
  /// The decimal text of `n`.
  ChartString(unsigned long n);
  ~ChartString();

  ChartString& operator=(const ChartString& other);
  ChartString& operator=(ChartString&& other) noexcept;
  ChartString& operator=(const XMLCh* text);
  ChartString& operator=(const char* text);

  /// Back to the default state.
  void clear();

  void assign(const XMLCh* text, const XMLCh* english);
  void assign(const XMLCh* text);
  void assign(XMLCh unit);
  void assign(const ChartString& other);
  void assign(const char* text);
  void assign(unsigned long n);
  void assignQUVAMBGeneric(const std::string& text);

  /// The text alone; the English form stays.
  void assignUTF8(const std::string& text);
  /// The English form alone; the text stays.
  void assignUTF8ForEng(const std::string& english);
  /// The text alone, as decimal digits with a leading "-" where needed; the English form stays.
  void assignInteger(long n);
  /// The text becomes formatter::AsString(value, digits); to the English form that text is appended.
  void assignDouble(double value, unsigned int digits);
  /// The text alone, from `bytes` in an encoding that iconv knows by that name; the English form stays. Null for null
  /// or empty `bytes`, the empty text for an unknown encoding.
  void convertToUnicode(std::string encoding, const char* bytes);

  /// Appends to both. Where there was no text before, the English form then holds `text` twice. A null or empty `text`
  /// does nothing.
  void append(const XMLCh* text);
  /// Appends to each buffer its own; a null or empty argument leaves its buffer as it is.
  void append(const XMLCh* text, const XMLCh* english);
  void append(XMLCh unit);
  void append(const ChartString& other);
  void append(const char* text);
  void append(unsigned long n);
  void appendInteger(long n);
  /// Appends formatter::AsString(value, 16).
  void appendDouble(double value);

  /// The text itself, null in the default state. It stands until the object changes.
  const XMLCh* xc_str() const;
  /// The number of UTF-16 units, 0 for null.
  unsigned int length() const;
  /// True for null and for the empty text.
  bool empty() const;

  /// By value; null equals only null here, not the empty text.
  bool equals(const ChartString& other) const;
  bool operator==(const ChartString& other) const;
  /// By value; null and the empty text are equal here.
  bool equals(const XMLCh* other) const;
  /// By value under simple case folding, character by character; null and the empty text are equal.
  bool equalsi(const XMLCh* other) const;
  /// By UTF-16 units; null comes first.
  bool operator<(const ChartString& other) const;
  /// Whether `text` occurs anywhere. False where either is null.
  bool ContainsString(const XMLCh* text) const;
  /// Whether the text has only characters of a number, and those in their places: a "-" in front; one point; one "e" or
  /// "E", neither first nor last; a sign straight after it, but not last. It asks for no digit and parses nothing:
  /// "-" and "." pass and so does a point in the exponent, while a leading "+" and any comma fail. False for null and
  /// for the empty text.
  bool isNumber() const;

  /// In UTF-8; empty for null.
  std::string toUTF8() const;
  std::string toUTF8ForEng() const;

  /// In the text alone.
  void replaceChars(XMLCh from, XMLCh to);
  /// Takes the last `n` units away, all of them where there are no more; it does not cut to a length of `n`. In the
  /// text alone.
  void truncateString(unsigned int n);
  /// Cuts to the first `n` UTF-16 units, one less where the cut would part a surrogate pair. Both buffers then hold the
  /// cut text.
  void mbTruncateString(unsigned long n);
  /// Removes the blanks (U+0020 only) at the end, in the text alone; with `both` also those in front, and if there were
  /// any, both buffers hold the result.
  void trimSpaces(bool both);
  /// Replaces each `from`, from left to right and without looking at what it put in, and returns how many there were. A
  /// null `to` is the empty text. With a hit both buffers hold the result, and are null where nothing is left. Without
  /// one nothing changes; a null or empty `from` is never hit.
  unsigned int replaceSubstring(const XMLCh* from, const XMLCh* to);
  /// Writes the five characters that markup claims as "&amp;", "&lt;", "&gt;", "&quot;" and "&#39;". The buffers change
  /// as in replaceSubstring.
  ChartString& escapeSpecialCharacters();

  /// The number that the digits "0" to "9" make, modulo 2^32; 0 if any other unit occurs, a sign included.
  unsigned int convertToInteger() const;
  /// As convertToInteger, but a "-" anywhere, even between digits or several times, makes the number negative.
  int convertToSignedInteger() const;
  /// The number at the beginning of the text, by the C library's strtod; what follows it is ignored, and a text without
  /// one gives 0.0. A point and a comma both serve as the decimal mark in every locale. A text with a "/" anywhere
  /// gives 0.0.
  double convertToDouble() const;

private:
  XMLCh* text_ = nullptr;
  XMLCh* english_ = nullptr;
};
