// Documents from outside as the layer above the wrappers takes them: where their bytes come from, how they are scanned
// so that nothing beside them is ever opened, and what is said of one that cannot be taken.
#pragma once

#include <xercesc/framework/XMLDocumentHandler.hpp>
#include <xercesc/framework/XMLEntityHandler.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/internal/IGXMLScanner.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/validators/common/GrammarResolver.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace orbchart {

/// Keeps the XML platform up. It goes before whatever needs the platform, inputs and scanners among them.
class PlatformHold {
public:
  PlatformHold();
  PlatformHold(const PlatformHold&) = delete;
  PlatformHold& operator=(const PlatformHold&) = delete;
  ~PlatformHold();
};

/// Where something stands in an input: line and column, counted from 1, the column in units of UTF-16.
struct Place {
  std::size_t line = 1;
  std::size_t column = 1;
};

/// What is wrong with a document, in words, and where. It is thrown while a scan runs, and never leaves the library.
struct Fault {
  Place place;
  std::string words;
};

/// "NAME:LINE:COLUMN: WORDS".
std::string textOf(const std::string& name, const Fault& fault);
/// The same to the log and to the host.
[[noreturn]] void raiseFault(const std::string& name, const Fault& fault);

/// Follows the bytes of an input, as they come, to the first that is not UTF-8, and so knows the line and the column of
/// what a transcoder, which makes many characters at once, can only refuse.
class ByteTrail {
public:
  void follow(const XMLByte* bytes, std::size_t count);
  /// Writes some blanks behind the last byte and returns how many: the scanner drops a character that is cut off by the
  /// end, and would take the document for good. One that ends so, or that is not UTF-8, gets them; where it is well
  /// formed in another encoding, they are white space behind its end.
  std::size_t pad(XMLByte* toFill, std::size_t maximum);

  /// The first character that is not UTF-8, and the first that is not ASCII; null if there was none.
  const Place* noUtf8() const { return isUtf8_ ? nullptr : &character_; }
  /// Whether the first characters are of two bytes.
  bool isWide() const { return isWide_; }
  const Place* beyondAscii() const { return beyondAscii_.line == 0 ? nullptr : &beyondAscii_; }

private:
  const XMLByte* begin(const XMLByte* bytes);
  const XMLByte* passAscii(const XMLByte* bytes, const XMLByte* end);
  bool take(XMLByte byte);

  Place place_;
  Place character_;
  Place beyondAscii_{0, 0};
  unsigned int pending_ = 0;
  XMLByte lowest_ = 0x80;
  XMLByte highest_ = 0xBF;
  bool isAtStart_ = true;
  bool isWide_ = false;
  bool isAsciiBased_ = false;
  bool isAfterReturn_ = false;
  bool isUtf8_ = true;
};

/// The bytes of a document, read once, while they are scanned.
class ChartInput : public xercesc::InputSource {
public:
  /// What stands before the line in messages: the path as it was given, or the name of a text.
  const std::string& name() const { return name_; }
  /// Whether there was no byte at all. It is known after a scan.
  virtual bool isEmpty() const = 0;
  /// Raises when the bytes ended early because the system could not read on.
  virtual void requireWhole() const {}
  const ByteTrail& trail() const { return trail_; }

protected:
  explicit ChartInput(const std::string& name);

  mutable ByteTrail trail_;

private:
  std::string name_;
};

/// A file: a regular one, a pipe or a device. One that is not there, may not be read or is a folder raises
/// "NAME:1:1: " and words.
class FileInput : public ChartInput {
public:
  explicit FileInput(const std::string& path);
  ~FileInput() override;

  xercesc::BinInputStream* makeStream() const override;
  bool isEmpty() const override { return state_.bytes == 0; }
  void requireWhole() const override;

private:
  class Stream;
  struct State {
    int descriptor;
    std::size_t bytes = 0;
    int error = 0;
  };
  mutable State state_;
};

/// A text in memory, which has to stay there; it is not copied.
class TextInput : public ChartInput {
public:
  TextInput(std::string_view text, const std::string& name);

  xercesc::BinInputStream* makeStream() const override;
  bool isEmpty() const override { return text_.empty(); }

private:
  std::string_view text_;
};

/// What a scanner needs before it can be made.
struct ScannerPools {
  xercesc::GrammarResolver grammars_{nullptr};
};

/// Scans one document and calls a handler with what it meets, without namespaces: names are whole, prefixes and all.
/// It neither validates nor looks at a schema, opens nothing, and takes no document type declaration.
class ChartScanner : private ScannerPools,
                     public xercesc::IGXMLScanner,
                     private xercesc::XMLErrorReporter,
                     private xercesc::XMLEntityHandler {
public:
  explicit ChartScanner(xercesc::XMLDocumentHandler& handler);

  /// Scans an input to its end. What is not well formed, or not in the encoding that it declares, throws a Fault, and
  /// so does a document type declaration; a file that cannot be read on raises. An exception of the handler passes, but
  /// one of Xerces becomes a Fault.
  void scan(const ChartInput& input);

  /// Where the scan is: during an event, behind what the event tells of. An element's start tag begins where the event
  /// before it ended: who keeps this place at each event has it.
  Place here() const;

protected:
  /// Called with the place of a document type declaration, before any of it is read. It throws a Fault; an override
  /// that returns has the declaration passed over, with no entity in it declared.
  virtual void foundDocumentType(Place place);

private:
  void scanDocTypeDecl() override;
  void passDocumentType();
  void passTo(const XMLCh* end);
  bool isReadAsWide() const;

  // What the scanner asks of its surroundings.
  void error(unsigned int code, const XMLCh* domain, ErrTypes type, const XMLCh* text, const XMLCh* systemId,
             const XMLCh* publicId, XMLFileLoc line, XMLFileLoc column) override;
  void resetErrors() override {}
  void startInputSource(const xercesc::InputSource& /*source*/) override {}
  void endInputSource(const xercesc::InputSource& /*source*/) override {}
  bool expandSystemId(const XMLCh* /*systemId*/, xercesc::XMLBuffer& /*toFill*/) override { return false; }
  void resetEntities() override {}
  xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* identifier) override;

  const ByteTrail* trail_ = nullptr;
};

} // namespace orbchart
