// Escaping, and the characters that an encoding cannot hold.
#include "printbuffer.h"

#include "orberrorhandler.h"

#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/TranscodingException.hpp>
#include <xercesc/util/XML256TableTranscoder.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <algorithm>

using xercesc::XMLFormatter;
using xercesc::XMLString;

namespace orbchart {
namespace {

constexpr bool isSurrogate(XMLCh unit) { return (unit & 0xF800) == 0xD800; }
constexpr bool isHighSurrogate(XMLCh unit) { return (unit & 0xFC00) == 0xD800; }
constexpr bool isLowSurrogate(XMLCh unit) { return (unit & 0xFC00) == 0xDC00; }
constexpr bool isPair(XMLCh first, XMLCh second) { return isHighSurrogate(first) && isLowSurrogate(second); }

/// The control characters beyond ASCII, save U+0085, which is a line break.
constexpr bool isControl(XMLCh unit) { return unit >= 0x80 && unit < 0xA0 && unit != 0x85; }

constexpr bool isFullwidth(XMLCh unit) { return unit >= 0xFF01 && unit <= 0xFF5E; }

constexpr char32_t codePoint(std::u16string_view character) {
  if (character.size() == 1)
    return character[0];
  return 0x10000 + ((character[0] - 0xD800u) << 10) + (character[1] - 0xDC00u);
}

std::u16string_view namedReference(XMLCh unit) {
  switch (unit) {
  case u'&':
    return u"&amp;";
  case u'<':
    return u"&lt;";
  case u'>':
    return u"&gt;";
  case u'"':
    return u"&quot;";
  case u'\'':
    return u"&apos;";
  case u'\n':
    return u"&#10;";
  default:
    return {};
  }
}

std::u16string hexadecimal(char32_t character) {
  XMLCh digits[16];
  XMLString::binToText(static_cast<unsigned int>(character), digits, std::size(digits) - 1, 16);
  return digits;
}

std::unique_ptr<xercesc::XMLTranscoder> transcoderLike(const XMLFormatter& formatter) {
  xercesc::XMLTransService::Codes result = xercesc::XMLTransService::Ok;
  return std::unique_ptr<xercesc::XMLTranscoder>(xercesc::XMLPlatformUtils::fgTransService->makeNewTranscoderFor(
      formatter.getEncodingName(), result, 64, xercesc::XMLPlatformUtils::fgMemoryManager));
}

void logLost(char32_t character, const XMLFormatter& formatter) {
  OrbErrorHandler().error(xercesc::TranscodingException(__FILE__, __LINE__, xercesc::XMLExcepts::Trans_Unrepresentable,
                                                        hexadecimal(character).c_str(), formatter.getEncodingName(),
                                                        nullptr, nullptr, xercesc::XMLPlatformUtils::fgMemoryManager));
}

} // namespace

/// For each ASCII unit the places in which it is written as a reference.
struct PrintBuffer::ReferencedUnits {
  std::uint8_t places[128] = {};

  constexpr explicit ReferencedUnits(bool isVersion11) {
    if (isVersion11) {
      std::fill_n(places, 0x20, inAttribute | inText);
      places[0x7F] = inAttribute | inText;
      places[+'\t'] = 0;
    }
    for (char unit : {'&', '<', '>'})
      places[+unit] = inAttribute | inText;
    for (char unit : {'"', '\'', '\n'})
      places[+unit] = inAttribute;
    places[+'\r'] = inText;
  }
};

constexpr PrintBuffer::ReferencedUnits PrintBuffer::referencedUnits[2] = {ReferencedUnits(false),
                                                                          ReferencedUnits(true)};

PrintBuffer::PrintBuffer(XMLFormatter& formatter, const XMLCh* version) :
    formatter_(formatter),
    probe_(transcoderLike(formatter)),
    isVersion11_(XMLString::equals(version, xercesc::XMLUni::fgVersion1_1)),
    holdsAllUnicode_(probe_->canTranscodeTo(0x20000)),
    isTableDriven_(dynamic_cast<const xercesc::XML256TableTranscoder*>(probe_.get()) != nullptr) {
  constexpr std::uint8_t everywhere = asItStands | inAttribute | inText;
  std::copy_n(referencedUnits[isVersion11_].places, std::size(special_), special_);
  // A few encodings lack some of ASCII: the backslash, or what shifts their state.
  for (std::size_t ascii = 1; ascii < std::size(special_); ++ascii) {
    const auto unit = static_cast<XMLCh>(ascii);
    if (!canHold({&unit, 1}))
      special_[unit] = everywhere;
  }
  // Every text ends there.
  special_[0] = everywhere;
}

void PrintBuffer::line(unsigned int indent) {
  put(u"\n");
  for (; indent > 0; --indent)
    put(u"\t");
}

void PrintBuffer::flush() {
  const std::size_t count = end_ - units_;
  end_ = units_;
  if (count > 0)
    formatter_.formatBuf(units_, count, XMLFormatter::NoEscapes);
}

PrintBuffer& PrintBuffer::append(const XMLCh* text, Place place) {
  if (text == nullptr)
    return *this;
  char32_t lost = 0;
  for (text = appendOrdinary(text, place); *text != 0; text = appendOrdinary(text, place)) {
    const std::u16string_view character(text, isPair(text[0], text[1]) ? 2 : 1);
    text += character.size();
    if (isReference(character[0], place))
      appendReference(character[0]);
    else if (canHold(character))
      put(character);
    else if (lost == 0)
      lost = codePoint(character);
  }
  if (lost != 0)
    logLost(lost, formatter_);
  return *this;
}

/// Appends the units that are simply copied, and returns where they end.
const XMLCh* PrintBuffer::appendOrdinary(const XMLCh* text, Place place) {
  const std::uint8_t* const special = special_;
  const XMLCh firstToAsk = isVersion11_ || !holdsAllUnicode_ ? 0x80 : 0xD800;
  const auto isOrdinary = [=](XMLCh unit) { return unit < 0x80 ? (special[unit] & place) == 0 : unit < firstToAsk; };
  const XMLCh* const limit = units_ + capacity;
  XMLCh* end = end_;
  for (XMLCh unit = *text; isOrdinary(unit); unit = *++text) {
    if (end == limit) {
      end_ = end;
      flush();
      end = end_;
    }
    *end++ = unit;
  }
  end_ = end;
  return text;
}

void PrintBuffer::appendReference(XMLCh unit) {
  const std::u16string_view name = namedReference(unit);
  put(name.empty() ? u"&#x" + hexadecimal(unit) + u";" : name);
}

/// Whether a unit is written as a reference where it stands.
bool PrintBuffer::isReference(XMLCh unit, Place place) const {
  if (unit < 0x80)
    return (referencedUnits[isVersion11_].places[unit] & place) != 0;
  return isVersion11_ && place != asItStands && isControl(unit) && canHold({&unit, 1});
}

bool PrintBuffer::canHold(std::u16string_view character) const {
  const XMLCh unit = character[0];
  // Beyond the basic plane a transcoder's answer is of no use: some look at 16 bits of what they are asked, others at
  // another character. An encoding that is not all of Unicode is taken to have nothing there.
  if (character.size() == 2)
    return holdsAllUnicode_;
  if (isSurrogate(unit))
    return false;
  // The tables have the fullwidth forms as the ASCII characters that they look like, those of the markup among them.
  if (isTableDriven_ && isFullwidth(unit))
    return false;
  return holdsAllUnicode_ || probe_->canTranscodeTo(unit);
}

void PrintBuffer::put(std::u16string_view units) {
  reserve(units.size());
  end_ = std::copy(units.begin(), units.end(), end_);
}

std::u16string withoutLoneSurrogates(const XMLFormatter& formatter, std::u16string_view text) {
  std::u16string kept;
  char32_t lost = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!isSurrogate(text[i])) {
      kept += text[i];
    } else if (i + 1 < text.size() && isPair(text[i], text[i + 1])) {
      kept += text.substr(i++, 2);
    } else if (lost == 0) {
      lost = text[i];
    }
  }
  if (lost != 0)
    logLost(lost, formatter);
  return kept;
}

} // namespace orbchart
