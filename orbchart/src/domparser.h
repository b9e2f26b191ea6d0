// The DOM of a document, built while a scanner goes through it.
#pragma once

#include "chartinput.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstddef>
#include <memory>
#include <unordered_set>

XERCES_CPP_NAMESPACE_BEGIN
class DOMAttrImpl;
class DOMElementImpl;
XERCES_CPP_NAMESPACE_END

namespace orbchart {

struct ReleaseDocument {
  void operator()(xercesc::DOMDocument* document) const { document->release(); }
};
using OwnedDocument = std::unique_ptr<xercesc::DOMDocument, ReleaseDocument>;

/// Builds what XercesDOMParser builds without namespaces, with every `id` marked as an ID attribute.
///
/// Xerces looks up the parts of a node by several dynamic casts for each node that it appends, which is most of what a
/// parse takes. Elements, attributes and their texts are appended here by classes that are known.
///
/// More than mostOfAKind of what a DOM takes the square of throws a Fault.
class DomParser : protected xercesc::XercesDOMParser {
public:
  DomParser();

  /// Throws what a scan throws.
  OwnedDocument parse(const ChartInput& input);

protected:
  /// Where what an event tells of begins, until the event comes here.
  Place begin() const { return begin_; }

  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int uri, const XMLCh* prefix,
                    const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes, XMLSize_t count, bool isEmpty,
                    bool isRoot) override;
  /// Called for an empty element as well.
  void endElement(const xercesc::XMLElementDecl& declaration, unsigned int uri, bool isRoot,
                  const XMLCh* prefix) override;
  void docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) override;
  void docComment(const XMLCh* text) override;
  void docPI(const XMLCh* target, const XMLCh* data) override;
  void ignorableWhitespace(const XMLCh* text, XMLSize_t length, bool isCData) override;
  void XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone, const XMLCh* actual) override;

private:
  void addAttributes(xercesc::DOMElementImpl& element, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                     XMLSize_t count);
  void addId(xercesc::DOMAttrImpl& attribute, const XMLCh* id);
  void passName(const XMLCh* pooled);

  ChartScanner* scanner_;
  Place begin_;
  /// The DOM holds each name once.
  std::unordered_set<const XMLCh*> names_;
  std::size_t repeatedIds_ = 0;
};

} // namespace orbchart
