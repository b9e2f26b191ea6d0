// What the writer prints, on its way to the formatter: escaped here and handed on in long runs, since a formatter costs
// most by the call.
#pragma once

#include <xercesc/framework/XMLFormatter.hpp>
#include <xercesc/util/TransService.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace orbchart {

class PrintBuffer {
public:
  PrintBuffer(xercesc::XMLFormatter& formatter, const XMLCh* version);
  PrintBuffer(const PrintBuffer&) = delete;
  PrintBuffer& operator=(const PrintBuffer&) = delete;

  /// A constant piece of markup.
  template <std::size_t Size> PrintBuffer& markup(const XMLCh (&text)[Size]) {
    reserve(Size - 1);
    for (std::size_t i = 0; i + 1 < Size; ++i)
      *end_++ = text[i];
    return *this;
  }

  /// A text of the document as it stands: a name, a comment, an identifier. Null is nothing, here and below.
  PrintBuffer& plain(const XMLCh* text) { return append(text, asItStands); }
  PrintBuffer& attributeValue(const XMLCh* text) { return append(text, inAttribute); }
  PrintBuffer& text(const XMLCh* text) { return append(text, inText); }

  /// A line feed and as many tabs.
  void line(unsigned int indent);

  /// Hands what is there to the formatter.
  void flush();

private:
  /// Where a text stands decides which of its characters are written as references.
  enum Place : std::uint8_t { asItStands = 1, inAttribute = 2, inText = 4 };
  struct ReferencedUnits;

  static constexpr std::size_t capacity = 8000;

  PrintBuffer& append(const XMLCh* text, Place place);
  const XMLCh* appendOrdinary(const XMLCh* text, Place place);
  void appendReference(XMLCh unit);
  void put(std::u16string_view units);
  bool isReference(XMLCh unit, Place place) const;
  bool canHold(std::u16string_view character) const;
  void reserve(std::size_t count) {
    if (static_cast<std::size_t>(units_ + capacity - end_) < count)
      flush();
  }

  static const ReferencedUnits referencedUnits[2];

  xercesc::XMLFormatter& formatter_;
  /// Answers what the encoding can hold. The formatter's own transcoder would keep what it was asked in its state, and
  /// an encoding with shift states print it.
  const std::unique_ptr<xercesc::XMLTranscoder> probe_;
  const bool isVersion11_;
  const bool holdsAllUnicode_;
  const bool isTableDriven_;
  /// For each ASCII unit the places in which it is not simply copied.
  std::uint8_t special_[128];
  XMLCh units_[capacity];
  XMLCh* end_ = units_;
};

/// The text without its lone surrogates, which are logged. No formatter may see them: it makes wrong characters of them
/// and never returns from a text that ends in a high one.
std::u16string withoutLoneSurrogates(const xercesc::XMLFormatter& formatter, std::u16string_view text);

} // namespace orbchart
