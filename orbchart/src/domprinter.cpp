// The walk over the DOM and the markup that it writes.
#include "domprinter.h"

#include "attributevalue.h"
#include "chartprinter.h"
#include "domprintformattarget.h"
#include "linelayout.h"
#include "orberrorhandler.h"
#include "printbuffer.h"
#include "quvaiocv.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstring>
#include <iostream>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

using orbchart::isEmpty;
using orbchart::isText;
using xercesc::DOMDocument;
using xercesc::DOMDocumentType;
using xercesc::DOMEntity;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::XMLException;
using xercesc::XMLFormatter;
using xercesc::XMLString;

namespace {

const XMLCh* encodingOf(const DOMDocument* document) {
  const XMLCh* encoding = document->getXmlEncoding();
  return isEmpty(encoding) ? DOMPrinter::_utf8 : encoding;
}

const XMLCh* versionOf(const DOMDocument* document) {
  const XMLCh* version = document->getXmlVersion();
  return isEmpty(version) ? u"1.0" : version;
}

} // namespace

/// One Print call: its formatter, and the walk. The printer has it for the time of the call, however that ends.
///
/// The two printers of the library are not called for each node, the walk follows their rules by itself. It keeps what
/// it knows of a node's surroundings, since the DOM's ways to a parent, a previous sibling and a last child are slow.
class __attribute__((visibility("hidden"))) DOMPrinter::Run {
public:
  Run(DOMPrinter& printer, const DOMDocument* document, std::ostream& stream) :
      printer_(printer),
      outerFormatter_(printer.formatter_),
      outerRun_(printer.run_),
      outerIndent_(printer.indent_),
      isChartPrinter_(typeid(printer) == typeid(ChartPrinter)),
      isDerived_(!isChartPrinter_ && typeid(printer) != typeid(DOMPrinter)),
      target_(stream),
      formatter_(encodingOf(document), versionOf(document), &target_, XMLFormatter::NoEscapes,
                 XMLFormatter::UnRep_Fail),
      buffer_(formatter_, versionOf(document)) {
    printer.formatter_ = &formatter_;
    printer.run_ = this;
  }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;
  ~Run() {
    printer_.formatter_ = outerFormatter_;
    printer_.run_ = outerRun_;
    printer_.indent_ = outerIndent_;
  }

  void print(const DOMNode* node, bool declarationOnly);

private:
  struct OpenElement {
    const DOMNode* node;
    const XMLCh* name;
    bool breaksLines;
  };
  using OpenElements = std::vector<OpenElement>;
  using Attributes = std::vector<std::pair<const XMLCh*, const XMLCh*>>;

  void walk(const DOMNode* root);
  const DOMNode* startElement(const DOMNode* element, OpenElements& open);
  const DOMNode* endElement(OpenElements& open);
  const Attributes& attributesOf(const DOMNode* element);
  void printChildless(const DOMNode* node, DOMNode::NodeType type, bool breaksLines);
  void printDeclaration(const DOMDocument* document);
  void printDocumentType(const DOMNode* node);
  void printEntity(const DOMNode* node);

  void beginNode(const DOMNode* node, bool breaksLines);
  void endNode(const OpenElement& element);
  void beginLine();
  template <typename Call> void callDerived(Call call);

  DOMPrinter& printer_;
  XMLFormatter* const outerFormatter_;
  Run* const outerRun_;
  const unsigned int outerIndent_;
  const bool isChartPrinter_;
  const bool isDerived_;
  bool isAfterText_ = false;
  Attributes attributes_;
  DOMPrintFormatTarget target_;
  XMLFormatter formatter_;
  orbchart::PrintBuffer buffer_;
};

DOMPrinter::~DOMPrinter() = default;

bool DOMPrinter::Print(const DOMDocument* document, std::ostream& stream) {
  return document != nullptr && print(document, document, stream, false);
}

bool DOMPrinter::Print(const DOMNode* node, std::ostream& stream, bool declarationOnly) {
  if (node == nullptr)
    return false;
  const bool isDocument = node->getNodeType() == DOMNode::DOCUMENT_NODE;
  const DOMDocument* document = isDocument ? static_cast<const DOMDocument*>(node) : node->getOwnerDocument();
  return document != nullptr && print(document, node, stream, declarationOnly);
}

bool DOMPrinter::print(const DOMDocument* document, const DOMNode* node, std::ostream& stream, bool declarationOnly) {
  const Run run(*this, document, stream);
  try {
    outputNode(stream, node, declarationOnly);
    stream.put(stream.widen('\n'));
    stream.flush();
    return true;
  } catch (const XMLException& exception) {
    OrbErrorHandler().error(exception);
    return false;
  }
}

std::ostream& DOMPrinter::outputNode(std::ostream& stream, const DOMNode* node, bool declarationOnly) {
  if (run_ != nullptr && node != nullptr)
    run_->print(node, declarationOnly);
  return stream;
}

void DOMPrinter::setPrintWhiteSpace(bool printWhiteSpace) { printWhiteSpace_ = printWhiteSpace; }

void DOMPrinter::IncrementIndent() { ++indent_; }

void DOMPrinter::DecrementIndent() {
  if (indent_ > 0)
    --indent_;
}

void DOMPrinter::beginNode(XMLFormatter& formatter, const DOMNode* node) {
  if (printWhiteSpace_ && !isText(node->getPreviousSibling()))
    beginLine(formatter);
}

void DOMPrinter::endNode(XMLFormatter& formatter, const DOMNode* node) {
  if (printWhiteSpace_ && !isText(node->getLastChild()))
    beginLine(formatter);
}

void DOMPrinter::beginLine(XMLFormatter& formatter) {
  if (!printWhiteSpace_)
    return;
  const std::u16string line = _newline + std::u16string(indent_, *_tab);
  formatter.formatBuf(line.data(), line.size());
}

void DOMPrinter::outputString(XMLFormatter& formatter, const XMLCh* text, int length) {
  if (text == nullptr || length == 0)
    return;
  const std::size_t count = length < 0 ? XMLString::stringLen(text) : static_cast<std::size_t>(length);
  const std::u16string kept = orbchart::withoutLoneSurrogates(formatter, {text, count});
  formatter.formatBuf(kept.data(), kept.size());
}

void DOMPrinter::outputString(std::ostream& stream, const XMLCh* text) {
  if (text == nullptr)
    return;
  char* bytes = QUVAMBTranscodeGeneric(text);
  if (bytes != nullptr)
    stream.write(bytes, static_cast<std::streamsize>(std::strlen(bytes)));
  QUVAMBRelease(&bytes);
}

void DOMPrinter::Run::print(const DOMNode* node, bool declarationOnly) {
  if (node->getNodeType() != DOMNode::DOCUMENT_NODE) {
    walk(node);
  } else {
    printDeclaration(static_cast<const DOMDocument*>(node));
    const DOMNode* child = declarationOnly ? nullptr : node->getFirstChild();
    for (; child != nullptr; child = child->getNextSibling())
      walk(child);
  }
  buffer_.flush();
}

/// Prints the node and everything under it, without recursion: a document may be nested to any depth.
void DOMPrinter::Run::walk(const DOMNode* root) {
  const DOMNode* parent = root->getParentNode();
  OpenElements open = {{parent, nullptr, !isChartPrinter_ || orbchart::breaksLines(parent)}};
  isAfterText_ = isText(root->getPreviousSibling());
  const DOMNode* node = root;
  for (;;) {
    const DOMNode* next = nullptr;
    const DOMNode::NodeType type = node->getNodeType();
    if (type == DOMNode::ELEMENT_NODE)
      next = startElement(node, open);
    else
      printChildless(node, type, open.back().breaksLines);
    while (next == nullptr && node != root) {
      next = node->getNextSibling();
      if (next == nullptr)
        node = endElement(open);
    }
    if (next == nullptr)
      return;
    node = next;
  }
}

/// Returns the first child, for which the element then stays open.
const DOMNode* DOMPrinter::Run::startElement(const DOMNode* element, OpenElements& open) {
  beginNode(element, open.back().breaksLines);
  const XMLCh* name = element->getNodeName();
  buffer_.markup(_openAngle).plain(name);
  for (const auto& [attributeName, value] : attributesOf(element)) {
    buffer_.markup(_space).plain(attributeName).markup(_equal);
    buffer_.markup(_doubleQuote).attributeValue(value).markup(_doubleQuote);
  }
  const DOMNode* child = element->getFirstChild();
  if (child == nullptr) {
    buffer_.markup(_forwardSlash);
  } else {
    printer_.IncrementIndent();
    open.push_back({element, name, !isChartPrinter_ || !orbchart::staysOnOneLine(name)});
  }
  buffer_.markup(_closeAngle);
  isAfterText_ = false;
  return child;
}

/// Returns the element that has ended.
const DOMNode* DOMPrinter::Run::endElement(OpenElements& open) {
  const OpenElement element = open.back();
  open.pop_back();
  printer_.DecrementIndent();
  endNode(element);
  buffer_.markup(_endElement).plain(element.name).markup(_closeAngle);
  isAfterText_ = false;
  return element.node;
}

/// The names and values of an element's attributes. Writing them one by one as they are found would wait for memory at
/// each; to gather them first lets these waits overlap.
const DOMPrinter::Run::Attributes& DOMPrinter::Run::attributesOf(const DOMNode* element) {
  attributes_.clear();
  const DOMNamedNodeMap* map = element->getAttributes();
  const XMLSize_t count = map->getLength();
  for (XMLSize_t i = 0; i < count; ++i) {
    const DOMNode* attribute = map->item(i);
    const XMLCh* value = orbchart::attributeValue(*attribute);
    __builtin_prefetch(value);
    attributes_.emplace_back(attribute->getNodeName(), value);
  }
  return attributes_;
}

/// Prints a node whose children, if it has any, are not walked.
void DOMPrinter::Run::printChildless(const DOMNode* node, DOMNode::NodeType type, bool breaksLines) {
  switch (type) {
  case DOMNode::TEXT_NODE:
    buffer_.text(node->getNodeValue());
    break;
  case DOMNode::CDATA_SECTION_NODE:
    beginNode(node, breaksLines);
    buffer_.markup(_startCDATA).plain(node->getNodeValue()).markup(_endCDATA);
    break;
  case DOMNode::ENTITY_REFERENCE_NODE:
    buffer_.markup(_ampersand).plain(node->getNodeName()).markup(_semiColon);
    break;
  case DOMNode::ENTITY_NODE:
    printEntity(node);
    break;
  case DOMNode::PROCESSING_INSTRUCTION_NODE:
    buffer_.markup(_startPI).plain(node->getNodeName());
    if (!isEmpty(node->getNodeValue()))
      buffer_.markup(_space).plain(node->getNodeValue());
    buffer_.markup(_endPI);
    break;
  case DOMNode::COMMENT_NODE:
    beginNode(node, breaksLines);
    buffer_.markup(_startComment).plain(node->getNodeValue()).markup(_endComment);
    break;
  case DOMNode::DOCUMENT_TYPE_NODE:
    printDocumentType(node);
    break;
  default:
    std::cerr << "Unrecognized node type = " << type << std::endl;
  }
  isAfterText_ = type == DOMNode::TEXT_NODE;
}

void DOMPrinter::Run::printDeclaration(const DOMDocument* document) {
  buffer_.markup(_xmlDecl1).plain(versionOf(document)).markup(_xmlDecl2).plain(encodingOf(document));
  if (document->getXmlStandalone())
    buffer_.markup(_xmlDecl3);
  buffer_.markup(_xmlDecl4);
}

void DOMPrinter::Run::printDocumentType(const DOMNode* node) {
  const auto* type = static_cast<const DOMDocumentType*>(node);
  beginLine();
  buffer_.markup(_startDoctype).plain(type->getName());
  const bool isPublic = !isEmpty(type->getPublicId());
  if (isPublic)
    buffer_.markup(_space).markup(_public).plain(type->getPublicId()).markup(_doubleQuote);
  if (!isEmpty(type->getSystemId())) {
    buffer_.markup(_space);
    if (isPublic)
      buffer_.markup(_doubleQuote);
    else
      buffer_.markup(_system);
    buffer_.plain(type->getSystemId()).markup(_doubleQuote);
  }
  if (!isEmpty(type->getInternalSubset()))
    buffer_.markup(_openSquare).plain(type->getInternalSubset()).markup(_closeSquare);
  buffer_.markup(_closeAngle);
}

void DOMPrinter::Run::printEntity(const DOMNode* node) {
  const auto* entity = static_cast<const DOMEntity*>(node);
  beginLine();
  buffer_.markup(_startEntity).plain(entity->getNodeName());
  if (!isEmpty(entity->getPublicId()))
    buffer_.markup(_public).plain(entity->getPublicId()).markup(_doubleQuote);
  if (!isEmpty(entity->getSystemId()))
    buffer_.markup(_system).plain(entity->getSystemId()).markup(_doubleQuote);
  if (!isEmpty(entity->getNotationName()))
    buffer_.markup(_notation).plain(entity->getNotationName()).markup(_doubleQuote);
  buffer_.markup(_closeAngle);
}

void DOMPrinter::Run::beginNode(const DOMNode* node, bool breaksLines) {
  if (isDerived_)
    callDerived([&] { printer_.beginNode(formatter_, node); });
  else if (breaksLines && !isAfterText_)
    beginLine();
}

void DOMPrinter::Run::endNode(const OpenElement& element) {
  if (isDerived_)
    callDerived([&] { printer_.endNode(formatter_, element.node); });
  else if (element.breaksLines && !isAfterText_)
    beginLine();
}

void DOMPrinter::Run::beginLine() {
  if (isDerived_)
    callDerived([&] { printer_.beginLine(formatter_); });
  else if (printer_.printWhiteSpace_)
    buffer_.line(printer_.indent_);
}

/// What a derived printer writes to the formatter has to land behind all that was written before, and its exceptions
/// must not end the walk.
template <typename Call> void DOMPrinter::Run::callDerived(Call call) {
  buffer_.flush();
  formatter_.setEscapeFlags(XMLFormatter::NoEscapes);
  try {
    call();
  } catch (const XMLException& exception) {
    OrbErrorHandler().error(exception);
  }
}
