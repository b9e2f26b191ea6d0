// The fuzz target: what a host does with a document from elsewhere. Read it or parse and load it, look at what it
// holds, print, and read the printed text again, which has to give the same document.
#include "chartprinter.h"
#include "chartreader.h"
#include "chartstring.h"
#include "orbbaseelement.h"
#include "orbcontainer.h"
#include "orbdocument.h"
#include "orbembeddedsource.h"
#include "orbexception.h"
#include "orbnames.h"
#include "orbrow.h"
#include "orbsourcevariable.h"
#include "orbstyle.h"
#include "orbvisualization.h"

#include "../tests/support/dom.h"

#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

/// Longer documents find nothing that shorter ones do not, and the indentation of a nested one grows with its square.
constexpr std::size_t longestInput = 16'384;

[[noreturn]] void fail(const char* what, const std::string& first, const std::string& second) {
  std::fprintf(stderr, "%s\n== first\n%s\n== second\n%s\n", what, first.c_str(), second.c_str());
  std::abort();
}

/// How a host parses a document: with what entities bring in among the children, or with references to it.
enum class Parsing { plain, keepingReferences };

/// A document of text that is not to be trusted: nothing is fetched and entities grow to a bound only. As in a host
/// that hears of no errors and takes what there is, it may be half a document.
class Parsed {
public:
  Parsed(std::string_view xml, Parsing parsing) {
    parser_.setValidationScheme(xercesc::XercesDOMParser::Val_Never);
    parser_.setLoadExternalDTD(false);
    parser_.setLoadSchema(false);
    parser_.setDisableDefaultEntityResolution(true);
    parser_.setCreateEntityReferenceNodes(parsing == Parsing::keepingReferences);
    parser_.setSecurityManager(&bounds_);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "document");
    parser_.parse(source);
    document_ = parser_.getDocument();
    // What references stand for cannot be written, so it cannot be marked either.
    if (parsing != Parsing::keepingReferences && document_ != nullptr && root() != nullptr)
      test::markIds(*document_);
  }

  DOMDocument* document() const { return document_; }
  DOMElement* root() const { return document()->getDocumentElement(); }

private:
  struct Bounds : xercesc::SecurityManager {
    Bounds() { setEntityExpansionLimit(100); }
  };

  Bounds bounds_;
  xercesc::XercesDOMParser parser_;
  DOMDocument* document_ = nullptr;
};

/// The next node after a node in document order.
const DOMNode* nextNode(const DOMNode* node) {
  if (node->getFirstChild() != nullptr)
    return node->getFirstChild();
  while (node != nullptr && node->getNextSibling() == nullptr)
    node = node->getParentNode();
  return node == nullptr ? nullptr : node->getNextSibling();
}

/// Calls with every attribute in a document.
void forEachAttribute(const DOMDocument& document, const std::function<void(DOMElement&, const DOMNode&)>& call) {
  for (const DOMNode* node = &document; node != nullptr; node = nextNode(node)) {
    const auto* attributes = node->getAttributes();
    for (XMLSize_t i = 0; attributes != nullptr && i < attributes->getLength(); ++i)
      call(const_cast<DOMElement&>(static_cast<const DOMElement&>(*node)), *attributes->item(i));
  }
}

/// Whether the encoding of a document is one of these.
bool isIn(const DOMDocument& document, std::initializer_list<const XMLCh*> encodings) {
  const XMLCh* declared = document.getXmlEncoding();
  const XMLCh* encoding = declared == nullptr || *declared == 0 ? u"UTF-8" : declared;
  return std::any_of(encodings.begin(), encodings.end(),
                     [=](const XMLCh* name) { return XMLString::compareIString(encoding, name) == 0; });
}

/// Whether what is printed has to be a document. A document type is printed as the DOM has it, which is not always what
/// a parse takes; and of the hundreds of encodings some begin with a shift sequence that no parser expects.
bool isReadable(const DOMDocument& document) {
  return document.getDoctype() == nullptr &&
         isIn(document, {u"UTF-8", u"UTF-16", u"US-ASCII", u"ISO-8859-1", u"ISO-2022-JP", u"Shift_JIS"});
}

/// Whether a parse of what is printed may give something else. Tabs and carriage returns in a value are printed as they
/// are and become blanks, version 1.1 has more such characters, and what an encoding cannot hold is left out.
bool isChangedByAParse(const DOMDocument& document) {
  bool isChanged = XMLString::equals(document.getXmlVersion(), u"1.1") || !isIn(document, {u"UTF-8", u"UTF-16"});
  forEachAttribute(document, [&](const DOMElement& /*element*/, const DOMNode& attribute) {
    isChanged = isChanged || XMLString::findAny(attribute.getNodeValue(), u"\t\r") != nullptr;
  });
  return isChanged;
}

volatile std::size_t seen;

void see(const XMLCh* text) { seen = seen + XMLString::stringLen(text); }

void readVariable(const CTVariableType& variable) {
  see(variable.getId());
  see(variable.getSource());
  seen = seen + static_cast<std::size_t>(variable.getMeasurementLevel());
  if (const CTVariableType* other = variable.getDependsOn())
    see(other->getLabel());
}

/// Reads what an application reads, and asks every attribute of the document for what it could mean.
void read(OrbDocument& chart) {
  const OrbVisualization& root = *chart.GetVisualization();
  seen = seen + static_cast<std::size_t>(root.getVersion() > 0);
  for (const OrbEmbeddedSource* source : root.getEmbeddedSources()) {
    seen = seen + static_cast<std::size_t>(source->getMissing());
    if (const OrbNames* names = source->getNames())
      see(names->getText().xc_str());
    for (const OrbRow* row : source->getRows()) {
      for (unsigned int field = 0; !row->getText(field).empty(); ++field)
        see(row->getText(field).xc_str());
    }
  }
  for (const OrbSourceVariable* variable : root.getSourceVariables())
    readVariable(*variable);

  forEachAttribute(*chart.getImplementation(), [](DOMElement& element, const DOMNode& attribute) {
    const OrbBaseElement wrapper(&element);
    see(wrapper.GetAttribute(attribute.getNodeName()));
    if (wrapper.doesIdExist(attribute.getNodeValue()))
      see(wrapper.getElementById(attribute.getNodeValue())->getTagName());
    const ChartString text(attribute.getNodeValue());
    seen = seen + text.convertToInteger() + static_cast<std::size_t>(text.convertToDouble() > 0);
  });
}

/// Dissolves the containers and gathers the styles and the legends.
void restructure(OrbVisualization& root) {
  root.reparentContainerChildren();
  if (!root.getStyles().empty())
    root.reparentStyles(*root.getStyles().back());
  root.reparentLegendChildren(*root.addContainer(u"gathered"));
}

/// Takes everything out again that the root can take out.
void removeChildren(OrbVisualization& root) {
  for (OrbEmbeddedSource* source : root.getEmbeddedSources()) {
    for (OrbRow* row : source->getRows())
      row->setText(u"changed", 1);
    source->removeRows();
    source->addRow();
  }
  root.removeEmbeddedSources();
  root.removeSourceVariables();
  root.removeGraphs();
  root.removeContainers();
  root.removeStyles();
  root.addGraph(u"added");
}

std::string printedOnOneLine(const DOMDocument& document) {
  std::ostringstream stream;
  ChartPrinter().Print(&document, stream);
  return stream.str();
}

/// Loads and reads a document and gives its text.
std::string loaded(const Parsed& parsed) {
  OrbDocument chart(parsed.document());
  read(chart);
  return chart.AsUTF8();
}

/// What is read of a text. All that it may raise is an OrbException.
std::unique_ptr<OrbDocument> readOf(const std::string& xml) noexcept {
  try {
    return ChartReader::readText(xml, "text");
  } catch (const OrbException&) {
    return nullptr;
  }
}

std::unique_ptr<OrbDocument> readAgain(const std::string& printed) {
  std::unique_ptr<OrbDocument> chart = ChartReader::readText(printed, "printed");
  read(*chart);
  return chart;
}

/// What was printed once can be read: an exception in here is a fault.
void checkPrinted(const Parsed& parsed, const std::string& first) noexcept {
  const std::unique_ptr<OrbDocument> again = readAgain(first);
  const std::string second = again->AsUTF8();
  const std::string third = readAgain(second)->AsUTF8();
  if (second != third)
    fail("The third print differs from the second.", second, third);
  if (isChangedByAParse(*parsed.document()))
    return;
  if (first != second)
    fail("The second print differs from the first.", first, second);
  const std::string line = printedOnOneLine(*parsed.document());
  if (!readAgain(line)->getImplementation()->getDocumentElement()->isEqualNode(parsed.root()))
    fail("What was printed is another document.", line, first);

  restructure(*again->GetVisualization());
  readAgain(again->AsUTF8());
  removeChildren(*again->GetVisualization());
  readAgain(again->AsUTF8());
}

/// A reader gives what a parser and a load give.
void checkRead(const OrbDocument& chart, const Parsed& parsed) noexcept {
  const std::string first = loaded(parsed);
  if (chart.AsUTF8() != first)
    fail("What is read differs from what is parsed.", first, chart.AsUTF8());
}

void check(std::string_view xml) {
  const std::unique_ptr<OrbDocument> chart = readOf(std::string(xml));
  const Parsed parsed(xml, Parsing::plain);
  if (chart != nullptr)
    checkRead(*chart, parsed);
  const std::string first = loaded(parsed);
  if (isReadable(*parsed.document())) {
    checkPrinted(parsed, first);
  } else {
    loaded(Parsed(xml, Parsing::keepingReferences));
    loaded(Parsed(first, Parsing::plain));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::Platform platform;
  if (size > longestInput)
    return -1;
  try {
    check({reinterpret_cast<const char*>(data), size});
  } catch (const OrbException&) {
  } catch (const xercesc::SAXException&) {
  } catch (const xercesc::XMLException&) {
  } catch (const xercesc::DOMException&) {
  }
  return 0;
}
