// Documents from outside: their bytes, their scan, and what is said of one that cannot be taken.
#include "chartinput.h"

#include "chartstring.h"
#include "messagetext.h"
#include "orbutility.h"
#include "raise.h"

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/util/BinInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <system_error>

using xercesc::BinInputStream;
using xercesc::XMLErrs;
using xercesc::XMLExcepts;
using xercesc::XMLReader;
using xercesc::XMLString;

namespace orbchart {

namespace {

/// The words that the system has for an error.
std::string systemWordsOf(int error) { return std::generic_category().message(error); }

std::string openingWordsOf(int error) {
  switch (error) {
  case ENOENT:
    return "there is no such file";
  case EACCES:
  case EPERM:
    return "there is no permission to read the file";
  default:
    return "the file cannot be opened: " + systemWordsOf(error);
  }
}

constexpr const char* notInEncoding = "not in the encoding that it declares";

std::string utf8(const XMLCh* text) { return ChartString(text).toUTF8(); }

/// Whether an exception of the transcoder is about bytes that are not UTF-8.
bool isNoUtf8(unsigned int code) {
  switch (code) {
  case XMLExcepts::UTF8_FormatError:
  case XMLExcepts::UTF8_Invalid_3BytesSeq:
  case XMLExcepts::UTF8_Irregular_3BytesSeq:
  case XMLExcepts::UTF8_Invalid_4BytesSeq:
  case XMLExcepts::UTF8_Exceeds_BytesLimit:
  case XMLExcepts::Trans_BadSrcSeq:
    return true;
  default:
    return false;
  }
}

/// What is wrong, as the scanner says it or, where that says little to people, in words of our own.
std::string wordsOf(unsigned int code, bool isException, const XMLCh* text) {
  const std::string malformed = "not well formed: ";
  if (!isException && code == XMLErrs::ContradictoryEncoding)
    return notInEncoding;
  if (!isException && code == XMLErrs::InvalidDocumentStructure)
    return malformed + "the root element should stand here";
  if (!isException)
    return malformed + utf8(text);
  if (isNoUtf8(code))
    return std::string(notInEncoding) + ": the bytes here are not UTF-8";
  switch (code) {
  case XMLExcepts::NodeIDMap_GrowErr:
    return "there are more ids than a document has room for";
  case XMLExcepts::Trans_CantCreateCvtrFor:
  case XMLExcepts::XMLRec_UnknownEncoding:
    return "the encoding that it declares is not known: " + utf8(text);
  case XMLExcepts::Trans_Unrepresentable:
  case XMLExcepts::Trans_BadSrcCP:
  case XMLExcepts::Trans_BadTrailingSurrogate:
  case XMLExcepts::Reader_CouldNotDecodeFirstLine:
    return std::string(notInEncoding) + ": " + utf8(text);
  default:
    return malformed + utf8(text);
  }
}

} // namespace

PlatformHold::PlatformHold() { OrbUtility::Initialize(); }
PlatformHold::~PlatformHold() { OrbUtility::Terminate(); }

std::string textOf(const std::string& name, const Fault& fault) {
  return name + ":" + std::to_string(fault.place.line) + ":" + std::to_string(fault.place.column) + ": " + fault.words;
}

void raiseFault(const std::string& name, const Fault& fault) { raise(textOf(name, fault)); }

void ByteTrail::follow(const XMLByte* bytes, std::size_t count) {
  const XMLByte* const end = bytes + count;
  if (isAtStart_ && count >= 4)
    bytes = begin(bytes);
  while (bytes != end && isUtf8_) {
    if (pending_ == 0)
      bytes = passAscii(bytes, end);
    if (bytes != end)
      isUtf8_ = take(*bytes++);
  }
}

std::size_t ByteTrail::pad(XMLByte* toFill, std::size_t maximum) {
  if (!isAsciiBased_ || (isUtf8_ && pending_ == 0))
    return 0;
  isAsciiBased_ = false; // once is enough
  isUtf8_ = false;
  return static_cast<std::size_t>(std::fill_n(toFill, std::min<std::size_t>(maximum, 6), XMLByte(' ')) - toFill);
}

/// Looks at the first bytes, and passes over a mark of the byte order, which is no character.
const XMLByte* ByteTrail::begin(const XMLByte* bytes) {
  isAtStart_ = false;
  constexpr XMLByte mark[] = {0xEF, 0xBB, 0xBF};
  const bool isMarked = std::equal(std::begin(mark), std::end(mark), bytes);
  const unsigned int pair = bytes[0] * 256U + bytes[1];
  isWide_ = pair == 0xFEFF || pair == 0xFFFE || pair == '<' || pair == '<' * 256U;
  isAsciiBased_ = isMarked || (!isWide_ && (bytes[0] == '<' || std::isspace(bytes[0]) != 0));
  return isMarked ? bytes + 3 : bytes;
}

/// Passes over characters of one byte, eight at a time.
const XMLByte* ByteTrail::passAscii(const XMLByte* bytes, const XMLByte* end) {
  const XMLByte* at = bytes;
  for (std::uint64_t eight = 0; end - at >= 8; at += 8) {
    std::memcpy(&eight, at, sizeof eight);
    if ((eight & 0x8080808080808080U) != 0)
      break;
  }
  while (at != end && *at < 0x80)
    ++at;
  for (; bytes != at; ++bytes) {
    const bool isReturn = *bytes == '\r';
    if (isReturn || *bytes == '\n') {
      place_.line += isReturn || !isAfterReturn_ ? 1 : 0;
      place_.column = 1;
    } else {
      ++place_.column;
    }
    isAfterReturn_ = isReturn;
  }
  return at;
}

/// Takes a byte of a character of more than one, if it can be one.
bool ByteTrail::take(XMLByte byte) {
  const bool fits = lowest_ <= byte && byte <= highest_;
  if (pending_ != 0) {
    --pending_;
    lowest_ = 0x80;
    highest_ = 0xBF;
    return fits;
  }
  character_ = place_;
  place_.column += byte < 0xF0 ? 1 : 2;
  isAfterReturn_ = false;
  if (beyondAscii_.line == 0)
    beyondAscii_ = character_;
  // What the second byte may be excludes the forms that are too long, surrogates, and what is past the last character.
  lowest_ = byte == 0xE0 ? 0xA0 : byte == 0xF0 ? 0x90 : 0x80;
  highest_ = byte == 0xED ? 0x9F : byte == 0xF4 ? 0x8F : 0xBF;
  pending_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
  return byte >= 0xC2 && byte <= 0xF4;
}

namespace {

/// The bytes of an input on their way to the scanner.
class ByteStream : public BinInputStream {
public:
  explicit ByteStream(ByteTrail& trail) : trail_(trail) {}

  XMLFilePos curPos() const override { return position_; }
  const XMLCh* getContentType() const override { return nullptr; }

  XMLSize_t readBytes(XMLByte* toFill, XMLSize_t maximum) override {
    std::size_t count = read(toFill, maximum);
    if (count != 0)
      trail_.follow(toFill, count);
    else
      count = trail_.pad(toFill, maximum);
    position_ += count;
    return count;
  }

protected:
  /// Reads as many bytes as there are, up to a count; 0 at the end.
  virtual std::size_t read(XMLByte* toFill, std::size_t maximum) = 0;

private:
  ByteTrail& trail_;
  XMLFilePos position_ = 0;
};

/// The descriptor of a file that is open to be read.
int opened(const std::string& path) {
  if (path.find('\0') != std::string::npos)
    raiseFault(path, {{}, openingWordsOf(ENOENT)});
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor == -1)
    raiseFault(path, {{}, openingWordsOf(errno)});
  return descriptor;
}

} // namespace

ChartInput::ChartInput(const std::string& name) : name_(name) {}

class FileInput::Stream : public ByteStream {
public:
  explicit Stream(const FileInput& input) : ByteStream(input.trail_), state_(input.state_) {}

private:
  /// A pipe gives less than is asked for; the encoding can be told only when the first bytes come together.
  std::size_t read(XMLByte* toFill, std::size_t maximum) override {
    std::size_t count = 0;
    while (count != maximum && state_.error == 0) {
      const ssize_t more = ::read(state_.descriptor, toFill + count, maximum - count);
      if (more == 0)
        break;
      if (more > 0)
        count += static_cast<std::size_t>(more);
      else if (errno != EINTR)
        state_.error = errno; // nothing may be thrown while the scanner makes its reader: it would leak
    }
    state_.bytes += count;
    return count;
  }

  State& state_;
};

FileInput::FileInput(const std::string& path) : ChartInput(path), state_{opened(path)} {
  struct stat status {};
  if (fstat(state_.descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
    close(state_.descriptor);
    raiseFault(path, {{}, "this is a folder and no file"});
  }
}

FileInput::~FileInput() { close(state_.descriptor); }

BinInputStream* FileInput::makeStream() const { return new Stream(*this); }

void FileInput::requireWhole() const {
  if (state_.error != 0)
    raiseFault(name(), {{}, "the file cannot be read: " + systemWordsOf(state_.error)});
}

namespace {

class TextStream : public ByteStream {
public:
  TextStream(std::string_view text, ByteTrail& trail) : ByteStream(trail), rest_(text) {}

private:
  std::size_t read(XMLByte* toFill, std::size_t maximum) override {
    const std::size_t count = std::min(maximum, rest_.size());
    std::memcpy(toFill, rest_.data(), count);
    rest_.remove_prefix(count);
    return count;
  }

  std::string_view rest_;
};

} // namespace

TextInput::TextInput(std::string_view text, const std::string& name) : ChartInput(name), text_(text) {}

BinInputStream* TextInput::makeStream() const { return new TextStream(text_, trail_); }

ChartScanner::ChartScanner(xercesc::XMLDocumentHandler& handler) :
    IGXMLScanner(&handler, nullptr, nullptr, nullptr, nullptr, &grammars_) {
  setURIStringPool(grammars_.getStringPool());
  setErrorReporter(this);
  setEntityHandler(this);
  setLoadExternalDTD(false);
  setLoadSchema(false);
  setDisableDefaultEntityResolution(true);
}

void ChartScanner::scan(const ChartInput& input) {
  trail_ = &input.trail();
  try {
    scanDocument(input);
  } catch (const Fault&) {
    input.requireWhole();
    if (input.isEmpty())
      throw Fault{{}, "the document is empty"};
    throw;
  } catch (const xercesc::DOMException& exception) {
    throw Fault{here(), utf8(exception.getMessage())};
  } catch (const xercesc::XMLException& exception) {
    throw Fault{here(), utf8(exception.getMessage())};
  } catch (const xercesc::OutOfMemoryException&) {
    throw Fault{here(), "there is not enough memory"};
  }
  input.requireWhole();
}

Place ChartScanner::here() const {
  const XMLReader* reader = getReaderMgr()->getCurrentReader();
  return reader == nullptr ? Place() : Place{reader->getLineNumber(), reader->getColumnNumber()};
}

void ChartScanner::foundDocumentType(Place place) { throw Fault{place, std::string(documentTypeRefused)}; }

void ChartScanner::scanDocTypeDecl() {
  Place place = here();
  place.column -= std::size(u"<!DOCTYPE") - 1;
  foundDocumentType(place);
  passDocumentType();
}

/// Passes over a declaration: to the ">" that is in no quotes, no comment, and no brackets.
void ChartScanner::passDocumentType() {
  int brackets = 0;
  for (XMLCh unit = fReaderMgr.getNextChar(); unit != 0; unit = fReaderMgr.getNextChar()) {
    if (unit == u'"' || unit == u'\'')
      fReaderMgr.skipPastChar(unit);
    else if (unit == u'<' && fReaderMgr.skippedString(u"!--"))
      passTo(u"-->");
    else if (unit == u'<' && fReaderMgr.skippedChar(u'?'))
      passTo(u"?>");
    else if (unit == u'[' || unit == u'<')
      ++brackets;
    else if (unit == u']' || (unit == u'>' && brackets != 0))
      --brackets;
    else if (unit == u'>')
      return;
  }
}

void ChartScanner::passTo(const XMLCh* end) {
  while (!fReaderMgr.skippedString(end) && fReaderMgr.getNextChar() != 0)
    continue;
}

void ChartScanner::error(unsigned int code, const XMLCh* domain, ErrTypes /*type*/, const XMLCh* text,
                         const XMLCh* /*systemId*/, const XMLCh* /*publicId*/, XMLFileLoc line, XMLFileLoc column) {
  // Characters are made of many bytes at once: the scan is somewhere before those of which none can be made.
  const bool isException = XMLString::equals(domain, xercesc::XMLUni::fgExceptDomain);
  const Place* exact = nullptr;
  if (isException && isNoUtf8(code))
    exact = trail_->noUtf8();
  else if (isException && code == XMLExcepts::Trans_Unrepresentable)
    exact = trail_->beyondAscii();
  if (trail_->isWide() && !isReadAsWide())
    throw Fault{{}, std::string(notInEncoding) + ": its characters are of two bytes"};
  const Place place{std::max<std::size_t>(line, 1), std::max<std::size_t>(column, 1)};
  throw Fault{exact == nullptr ? place : *exact, wordsOf(code, isException, text)};
}

/// Whether the scanner takes characters for such of two bytes or four.
bool ChartScanner::isReadAsWide() const {
  const XMLReader* reader = getReaderMgr()->getCurrentReader();
  const XMLCh* const encoding = reader == nullptr ? nullptr : reader->getEncodingStr();
  return encoding == nullptr || XMLString::patternMatch(encoding, u"16") != -1 ||
         XMLString::patternMatch(encoding, u"32") != -1 || XMLString::patternMatch(encoding, u"UC") != -1;
}

xercesc::InputSource* ChartScanner::resolveEntity(xercesc::XMLResourceIdentifier* /*identifier*/) {
  throw Fault{here(), "nothing outside the document is opened"};
}

} // namespace orbchart
