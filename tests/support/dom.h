// What the tests need of Xerces: the platform, a document that goes with its holder, and short ways to look at it.
#pragma once

#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLString.hpp>

#include <memory>
#include <string>

namespace test {

/// Keeps the XML platform up.
struct Platform {
  Platform() { xercesc::XMLPlatformUtils::Initialize(); }
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  ~Platform() { xercesc::XMLPlatformUtils::Terminate(); }
};

inline std::string utf8(const XMLCh* text) {
  const Platform platform;
  const xercesc::TranscodeToStr bytes(text, "UTF-8");
  return reinterpret_cast<const char*>(bytes.str());
}

/// Marks every `id` of a document as an ID attribute, as a host does with a document that it parsed.
inline void markIds(xercesc::DOMDocument& document) {
  const xercesc::DOMNodeList* elements = document.getElementsByTagName(u"*");
  for (XMLSize_t i = 0; auto* node = elements->item(i); ++i) {
    auto* element = static_cast<xercesc::DOMElement*>(node);
    if (element->hasAttribute(u"id"))
      element->setIdAttribute(u"id", true);
  }
}

/// A document parsed from text, with its ids marked.
class Parsed {
public:
  explicit Parsed(const std::string& xml) {
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(xml.data()), xml.size(), "test");
    parser_ = std::make_unique<xercesc::XercesDOMParser>();
    parser_->parse(source);
    if (document()->getDocumentElement() != nullptr)
      markIds(*document());
  }
  xercesc::DOMDocument* document() const { return parser_->getDocument(); }
  xercesc::DOMElement* root() const { return document()->getDocumentElement(); }

private:
  Platform platform_;
  std::unique_ptr<xercesc::XercesDOMParser> parser_;
};

/// A new document with a root of a given name.
class NewDocument {
public:
  explicit NewDocument(const XMLCh* rootName) :
      document_(xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS")->createDocument(nullptr, rootName,
                                                                                                nullptr)) {}
  NewDocument(const NewDocument&) = delete;
  NewDocument& operator=(const NewDocument&) = delete;
  ~NewDocument() { document_->release(); }
  xercesc::DOMDocument* document() const { return document_; }
  xercesc::DOMElement* root() const { return document_->getDocumentElement(); }

  /// Nests elements of one name below an element and returns the innermost.
  xercesc::DOMElement* nest(xercesc::DOMElement* top, const XMLCh* name, unsigned int levels) const {
    document_->setStrictErrorChecking(false);
    for (; levels != 0; --levels)
      top = static_cast<xercesc::DOMElement*>(top->appendChild(document_->createElement(name)));
    return top;
  }

private:
  Platform platform_;
  xercesc::DOMDocument* document_;
};

/// The children of an element in one line: element names (with their id, if any, as `name#id`), `!` for a comment and
/// `"` for a text.
inline std::string childrenOf(const xercesc::DOMElement* parent) {
  std::string line;
  for (auto* node = parent->getFirstChild(); node != nullptr; node = node->getNextSibling()) {
    line += line.empty() ? "" : " ";
    if (node->getNodeType() == xercesc::DOMNode::COMMENT_NODE) {
      line += "!";
    } else if (node->getNodeType() != xercesc::DOMNode::ELEMENT_NODE) {
      line += "\"";
    } else {
      const auto* element = static_cast<xercesc::DOMElement*>(node);
      line += utf8(element->getTagName());
      if (element->hasAttribute(u"id"))
        line += "#" + utf8(element->getAttribute(u"id"));
    }
  }
  return line;
}

} // namespace test
