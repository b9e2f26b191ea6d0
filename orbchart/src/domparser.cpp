// The DOM of a document, built while a scanner goes through it.
#include "domparser.h"

#include "messagetext.h"
#include "orbuni.h"

#include <xercesc/dom/impl/DOMAttrImpl.hpp>
#include <xercesc/dom/impl/DOMAttrMapImpl.hpp>
#include <xercesc/dom/impl/DOMCasts.hpp>
#include <xercesc/dom/impl/DOMDocumentImpl.hpp>
#include <xercesc/dom/impl/DOMElementImpl.hpp>
#include <xercesc/dom/impl/DOMTextImpl.hpp>
#include <xercesc/util/XMLString.hpp>

#include <string>

using xercesc::DOMAttrImpl;
using xercesc::DOMChildNode;
using xercesc::DOMElementImpl;
using xercesc::DOMNode;
using xercesc::DOMTextImpl;
using xercesc::RefVectorOf;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLString;

namespace orbchart {
namespace {

/// How a node is linked with its siblings.
DOMChildNode& linksOf(DOMNode* node) {
  switch (node->getNodeType()) {
  case DOMNode::ELEMENT_NODE:
    return static_cast<DOMElementImpl*>(node)->fChild;
  case DOMNode::TEXT_NODE:
    return static_cast<DOMTextImpl*>(node)->fChild;
  default:
    return *castToChildImpl(node);
  }
}

/// Makes a new node the last child. The first child's previous sibling is the last child.
template <class Parent, class Child> void append(Parent& parent, Child& child) {
  child.fNode.fOwnerNode = &parent;
  child.fNode.isOwned(true);
  DOMNode* first = parent.fParent.fFirstChild;
  if (first == nullptr) {
    parent.fParent.fFirstChild = &child;
    child.fNode.isFirstChild(true);
    child.fChild.previousSibling = &child;
    return;
  }
  DOMChildNode& firstLinks = linksOf(first);
  linksOf(firstLinks.previousSibling).nextSibling = &child;
  child.fChild.previousSibling = firstLinks.previousSibling;
  firstLinks.previousSibling = &child;
}

[[noreturn]] void refuseMoreThan(const std::string& what, Place place) { throw Fault{place, moreThanMost(what)}; }

} // namespace

DomParser::DomParser() : scanner_(new ChartScanner(*this)) {
  delete fScanner;
  fScanner = scanner_;
}

OwnedDocument DomParser::parse(const ChartInput& input) {
  scanner_->scan(input);
  return OwnedDocument(adoptDocument());
}

void DomParser::startElement(const XMLElementDecl& declaration, unsigned int uri, const XMLCh* prefix,
                             const RefVectorOf<XMLAttr>& attributes, XMLSize_t count, bool isEmpty, bool isRoot) {
  auto* element = static_cast<DOMElementImpl*>(createElement(declaration.getFullName()));
  passName(element->fName);
  addAttributes(*element, attributes, count);
  if (isRoot)
    fDocument->appendChild(element);
  else
    append(*static_cast<DOMElementImpl*>(fCurrentParent), *element);
  fCurrentParent = element;
  fCurrentNode = element;
  fWithinElement = true;
  begin_ = scanner_->here();
  if (isEmpty)
    endElement(declaration, uri, isRoot, prefix);
}

void DomParser::addAttributes(DOMElementImpl& element, const RefVectorOf<XMLAttr>& attributes, XMLSize_t count) {
  if (count == 0)
    return;
  if (count > mostOfAKind)
    refuseMoreThan("attributes in one element", begin_);
  element.fAttributes->reserve(count);
  for (XMLSize_t i = 0; i < count; ++i) {
    const XMLAttr& scanned = *attributes.elementAt(i);
    auto* attribute = static_cast<DOMAttrImpl*>(createAttr(scanned.getQName()));
    passName(attribute->fName);
    append(*attribute, *static_cast<DOMTextImpl*>(fDocument->createTextNode(scanned.getValue())));
    element.fAttributes->setNamedItemFast(attribute);
    if (XMLString::equals(attribute->fName, OrbUni::_id))
      addId(*attribute, scanned.getValue());
  }
}

void DomParser::addId(DOMAttrImpl& attribute, const XMLCh* id) {
  if (fDocument->getElementById(id) != nullptr && ++repeatedIds_ > mostOfAKind)
    refuseMoreThan("ids that are given again", begin_);
  attribute.addAttrToIDNodeMap();
}

void DomParser::passName(const XMLCh* pooled) {
  if (names_.insert(pooled).second && names_.size() > mostOfAKind)
    refuseMoreThan("different names", begin_);
}

void DomParser::endElement(const XMLElementDecl& /*declaration*/, unsigned int /*uri*/, bool isRoot,
                           const XMLCh* /*prefix*/) {
  fCurrentNode = fCurrentParent;
  fCurrentParent = static_cast<DOMElementImpl*>(fCurrentNode)->fNode.fOwnerNode;
  fWithinElement = !isRoot;
  begin_ = scanner_->here();
}

void DomParser::docCharacters(const XMLCh* text, XMLSize_t length, bool isCData) {
  begin_ = scanner_->here();
  if (!fWithinElement || isCData || fCurrentNode->getNodeType() == DOMNode::TEXT_NODE) {
    XercesDOMParser::docCharacters(text, length, isCData);
    return;
  }
  auto* node = static_cast<DOMTextImpl*>(createText(text, length));
  append(*static_cast<DOMElementImpl*>(fCurrentParent), *node);
  fCurrentNode = node;
}

void DomParser::docComment(const XMLCh* text) {
  begin_ = scanner_->here();
  XercesDOMParser::docComment(text);
}

void DomParser::docPI(const XMLCh* target, const XMLCh* data) {
  begin_ = scanner_->here();
  XercesDOMParser::docPI(target, data);
}

void DomParser::ignorableWhitespace(const XMLCh* text, XMLSize_t length, bool isCData) {
  begin_ = scanner_->here();
  XercesDOMParser::ignorableWhitespace(text, length, isCData);
}

/// A DOM knows two versions. All others that a scanner takes are read as the first.
void DomParser::XMLDecl(const XMLCh* version, const XMLCh* encoding, const XMLCh* standalone, const XMLCh* actual) {
  begin_ = scanner_->here();
  const bool isKnown = *version == 0 || XMLString::equals(version, u"1.0") || XMLString::equals(version, u"1.1");
  XercesDOMParser::XMLDecl(isKnown ? version : u"1.0", encoding, standalone, actual);
}

} // namespace orbchart
