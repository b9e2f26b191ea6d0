// ChartString on the buffers of the string library.
//
// Where an operation changes both buffers, the English form goes first: a host can only pass pointers into the text,
// and so they hold until the last step.
#include "chartstring.h"

#include "formatter.h"
#include "quvaiocv.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace {

struct Release {
  template <class Unit> void operator()(Unit* buffer) const { QUVAMBRelease(&buffer); }
};

template <class Unit> using Buffer = std::unique_ptr<Unit, Release>;

std::u16string_view view(const XMLCh* text) { return text ? std::u16string_view(text) : std::u16string_view(); }

Buffer<char> utf8(const XMLCh* text) { return Buffer<char>(QUVAMBTranscodeU8(text)); }

std::string utf8String(const XMLCh* text) {
  const auto bytes = utf8(text);
  return bytes ? bytes.get() : "";
}

void replaceBuffer(XMLCh*& buffer, XMLCh* replacement) {
  QUVAMBRelease(&buffer);
  buffer = replacement;
}

void appendTo(XMLCh*& buffer, const XMLCh* text) {
  if (text && *text)
    QUVAMBAppend(&buffer, text);
}

/// As the other, without another copy where the buffer is null.
void appendTo(XMLCh*& buffer, Buffer<XMLCh> text) {
  if (buffer || !*text)
    appendTo(buffer, text.get());
  else
    buffer = text.release();
}

bool isDigit(XMLCh unit) { return unit >= u'0' && unit <= u'9'; }

/// The character at `position`, case folded; `position` moves behind it.
UChar32 nextFolded(std::u16string_view text, std::size_t& position) {
  UChar32 character;
  U16_NEXT(text, position, text.size(), character);
  return u_foldCase(character, U_FOLD_CASE_DEFAULT);
}

} // namespace

ChartString::ChartString() = default;

ChartString::ChartString(const ChartString& other) : ChartString(other.text_, other.english_) {}

ChartString::ChartString(ChartString&& other) noexcept :
    text_(std::exchange(other.text_, nullptr)), english_(std::exchange(other.english_, nullptr)) {}

ChartString::ChartString(const XMLCh* text) : ChartString(text, text) {}

ChartString::ChartString(const XMLCh* text, const XMLCh* english) :
    text_(QUVAMBReplicate(text)), english_(QUVAMBReplicate(english)) {}

ChartString::ChartString(const char* text) :
    text_(QUVAMBTranscodeGeneric(text)), english_(QUVAMBTranscodeGeneric(text)) {}

ChartString::ChartString(const std::string& text, const std::string& english) :
    text_(text.empty() ? nullptr : QUVAMBTranscodeGeneric(text.c_str())),
    english_(english.empty() ? nullptr : QUVAMBTranscodeGeneric(english.c_str())) {}

ChartString::ChartString(unsigned long n) { append(n); }

ChartString::~ChartString() { clear(); }

ChartString& ChartString::operator=(const ChartString& other) { return *this = ChartString(other); }

ChartString& ChartString::operator=(ChartString&& other) noexcept {
  ChartString moved(std::move(other));
  std::swap(text_, moved.text_);
  std::swap(english_, moved.english_);
  return *this;
}

ChartString& ChartString::operator=(const XMLCh* text) {
  assign(text);
  return *this;
}

ChartString& ChartString::operator=(const char* text) {
  assign(text);
  return *this;
}

void ChartString::clear() {
  replaceBuffer(english_, nullptr);
  replaceBuffer(text_, nullptr);
}

void ChartString::assign(const XMLCh* text, const XMLCh* english) { *this = ChartString(text, english); }

void ChartString::assign(const XMLCh* text) { assign(text, text); }

void ChartString::assign(XMLCh unit) {
  const XMLCh text[] = {unit, 0};
  assign(text);
}

void ChartString::assign(const ChartString& other) { *this = other; }

void ChartString::assign(const char* text) { *this = ChartString(text); }

void ChartString::assign(unsigned long n) { *this = ChartString(n); }

void ChartString::assignQUVAMBGeneric(const std::string& text) { assign(text.c_str()); }

void ChartString::assignUTF8(const std::string& text) { replaceBuffer(text_, QUVAMBTranscodeU8(text.c_str())); }

void ChartString::assignUTF8ForEng(const std::string& english) {
  replaceBuffer(english_, QUVAMBTranscodeU8(english.c_str()));
}

void ChartString::assignInteger(long n) {
  replaceBuffer(text_, QUVAMBTranscodeGeneric(formatter::AsString(n).c_str()));
}

void ChartString::assignDouble(double value, unsigned int digits) {
  replaceBuffer(text_, nullptr);
  append(formatter::AsString(value, digits).c_str());
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is the interface
void ChartString::convertToUnicode(std::string encoding, const char* bytes) {
  replaceBuffer(text_, nullptr);
  if (!bytes || !*bytes)
    return;
  void* converter = QUVAMBConverterNew_A(encoding.c_str());
  std::u16string converted;
  QUVAMBGenericToU16(converter, converted, bytes);
  text_ = QUVAMBReplicate(converted.c_str());
  QUVAMBConverterDelete_A(converter);
}

void ChartString::append(const XMLCh* text) {
  if (!text || !*text)
    return;
  if (!text_)
    assign(nullptr, text); // so that the English form has it twice
  append(text, text);
}

void ChartString::append(const XMLCh* text, const XMLCh* english) {
  appendTo(english_, english);
  appendTo(text_, text);
}

void ChartString::append(XMLCh unit) {
  const XMLCh text[] = {unit, 0};
  append(text, text);
}

void ChartString::append(const ChartString& other) { append(other.text_, other.english_); }

void ChartString::append(const char* text) {
  if (!text || !*text)
    return;
  appendTo(english_, Buffer<XMLCh>(QUVAMBTranscodeGeneric(text)));
  appendTo(text_, Buffer<XMLCh>(QUVAMBTranscodeGeneric(text)));
}

void ChartString::append(unsigned long n) { append(formatter::AsString(n).c_str()); }

void ChartString::appendInteger(long n) { append(formatter::AsString(n).c_str()); }

void ChartString::appendDouble(double value) { append(formatter::AsString(value, 16).c_str()); }

const XMLCh* ChartString::xc_str() const { return text_; }

unsigned int ChartString::length() const { return static_cast<unsigned int>(view(text_).size()); }

bool ChartString::empty() const { return !text_ || !*text_; }

bool ChartString::equals(const ChartString& other) const { return !text_ == !other.text_ && equals(other.text_); }

bool ChartString::operator==(const ChartString& other) const { return equals(other); }

bool ChartString::equals(const XMLCh* other) const { return xercesc::XMLString::equals(text_, other); }

bool ChartString::equalsi(const XMLCh* other) const {
  const auto left = view(text_);
  const auto right = view(other);
  std::size_t i = 0, j = 0;
  while (i < left.size() && j < right.size())
    if (nextFolded(left, i) != nextFolded(right, j))
      return false;
  return i == left.size() && j == right.size();
}

bool ChartString::operator<(const ChartString& other) const {
  if (!text_ || !other.text_)
    return !text_ && other.text_;
  return view(text_) < view(other.text_);
}

bool ChartString::ContainsString(const XMLCh* text) const {
  return text && text_ && view(text_).find(text) != std::u16string_view::npos;
}

bool ChartString::isNumber() const {
  const auto text = view(text_);
  bool hasPoint = false, hasExponent = false, afterExponentMark = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const XMLCh unit = text[i];
    const bool isInside = i > 0 && i + 1 < text.size();
    const bool isExponentMark = unit == u'e' || unit == u'E';
    if (isExponentMark) {
      if (!isInside || std::exchange(hasExponent, true))
        return false;
    } else if (unit == u'.') {
      if (std::exchange(hasPoint, true))
        return false;
    } else if (unit == u'+' || unit == u'-') {
      const bool leads = unit == u'-' && i == 0;
      if (!leads && !(isInside && afterExponentMark))
        return false;
    } else if (!isDigit(unit)) {
      return false;
    }
    afterExponentMark = isExponentMark;
  }
  return !text.empty();
}

std::string ChartString::toUTF8() const { return utf8String(text_); }

std::string ChartString::toUTF8ForEng() const { return utf8String(english_); }

void ChartString::replaceChars(XMLCh from, XMLCh to) { std::replace(text_, text_ + length(), from, to); }

void ChartString::truncateString(unsigned int n) {
  const unsigned int size = length();
  std::fill_n(text_ + size - std::min(n, size), std::min(n, size), u'\0');
}

void ChartString::mbTruncateString(unsigned long n) {
  if (text_)
    assign(QUVAMBStringTruncate_W(text_, n));
}

void ChartString::trimSpaces(bool both) {
  const auto text = view(text_);
  truncateString(static_cast<unsigned int>(text.size() - (text.find_last_not_of(u' ') + 1)));
  if (both && !empty() && *text_ == u' ')
    assign(text_ + text.find_first_not_of(u' '));
}

unsigned int ChartString::replaceSubstring(const XMLCh* from, const XMLCh* to) {
  const auto text = view(text_);
  const auto wanted = view(from);
  if (wanted.empty())
    return 0;
  unsigned int count = 0;
  std::u16string result;
  std::size_t done = 0;
  for (auto hit = text.find(wanted); hit != text.npos; hit = text.find(wanted, done)) {
    result += text.substr(done, hit - done);
    result += view(to);
    done = hit + wanted.size();
    ++count;
  }
  if (count == 0)
    return 0;
  result += text.substr(done);
  assign(result.empty() ? nullptr : result.c_str());
  return count;
}

ChartString& ChartString::escapeSpecialCharacters() {
  replaceSubstring(u"&", u"&amp;"); // first, or it would meet those of the others
  replaceSubstring(u"<", u"&lt;");
  replaceSubstring(u">", u"&gt;");
  replaceSubstring(u"\"", u"&quot;");
  replaceSubstring(u"'", u"&#39;");
  return *this;
}

unsigned int ChartString::convertToInteger() const {
  unsigned int value = 0;
  for (XMLCh unit : view(text_)) {
    if (!isDigit(unit))
      return 0;
    value = value * 10 + (unit - u'0');
  }
  return value;
}

int ChartString::convertToSignedInteger() const {
  unsigned int value = 0;
  bool isNegative = false;
  for (XMLCh unit : view(text_)) {
    if (unit == u'-')
      isNegative = true;
    else if (isDigit(unit))
      value = value * 10 + (unit - u'0');
    else
      return 0;
  }
  return static_cast<int>(isNegative ? 0 - value : value);
}

double ChartString::convertToDouble() const {
  const auto number = utf8(text_);
  if (!number || std::strchr(number.get(), '/'))
    return 0.0;
  const char mark = *std::localeconv()->decimal_point == '.' ? '.' : ',';
  const char otherMark = mark == '.' ? ',' : '.';
  std::replace(number.get(), number.get() + std::strlen(number.get()), otherMark, mark);
  return std::strtod(number.get(), nullptr);
}
