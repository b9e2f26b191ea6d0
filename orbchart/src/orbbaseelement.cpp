// The base of every wrapper.
#include "orbbaseelement.h"

#include "attributevalue.h"
#include "chartprinter.h"
#include "chartstring.h"
#include "orbuni.h"
#include "placement.h"
#include "raise.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLString.hpp>

#include <sstream>

using orbchart::isEmpty;
using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

/// A node's own name and id, as the log speaks of the places of an id.
void appendPlace(ChartString& message, const DOMNode& node) {
  message.append(node.getNodeName());
  message.append(u"--");
  if (node.getNodeType() == DOMNode::ELEMENT_NODE)
    message.append(static_cast<const DOMElement&>(node).getAttribute(OrbUni::_id));
}

/// Logs that an id is given a second time, unless the parents of both elements have the same name.
void reportUsedId(const XMLCh* id, const DOMElement& existing, const DOMElement& attempted) {
  const DOMNode* existingParent = existing.getParentNode();
  if (existingParent == nullptr)
    return;
  const DOMNode* attemptedParent = attempted.getParentNode();
  if (attemptedParent != nullptr && XMLString::equals(existingParent->getNodeName(), attemptedParent->getNodeName()))
    return;
  ChartString message(u"Attempting to add an existing ID to an element (");
  message.append(id);
  message.append(u") existing: ");
  appendPlace(message, *existingParent);
  if (attemptedParent != nullptr) {
    message.append(u" attempted: ");
    appendPlace(message, *attemptedParent);
  }
  orbchart::report(message.toUTF8());
}

/// Printed bytes, in the encoding of their document, as a string. Xerces knows more encodings than others do, and some
/// of them by other names.
ChartString decoded(const std::string& bytes, const XMLCh* encoding) {
  const std::string name = isEmpty(encoding) ? "UTF-8" : ChartString(encoding).toUTF8();
  const xercesc::TranscodeFromStr text(reinterpret_cast<const XMLByte*>(bytes.data()), bytes.size(), name.c_str());
  return ChartString(text.str());
}

} // namespace

OrbBaseElement::OrbBaseElement(DOMElement* element) : element_(element) {}

OrbBaseElement::OrbBaseElement(const OrbBaseElement& other) = default;

OrbBaseElement::~OrbBaseElement() = default;

std::string OrbBaseElement::AsUTF8() const {
  std::ostringstream stream;
  ChartPrinter printer;
  printer.setPrintWhiteSpace(true);
  printer.Print(element_, stream, false);
  return std::move(stream).str();
}

DOMElement* OrbBaseElement::getImplementation() const { return element_; }

const XMLCh* OrbBaseElement::GetAttribute(const XMLCh* name) const {
  const DOMAttr* attribute = name == nullptr ? nullptr : element_->getAttributeNode(name);
  return attribute == nullptr ? u"" : orbchart::attributeValue(*attribute);
}

DOMAttr* OrbBaseElement::AddAttribute(const XMLCh* name, const XMLCh* value) {
  if (isEmpty(name) || isEmpty(value) || !xercesc::XMLChar1_0::isValidName(name, XMLString::stringLen(name)))
    return nullptr;
  DOMAttr* attribute = element_->getOwnerDocument()->createAttribute(name);
  if (attribute == nullptr) {
    ChartString message(u"Could not add attribute \"");
    message.append(name);
    message.append(u"=");
    message.append(value);
    message.append(u"\" for ");
    message.append(element_->getNodeName());
    orbchart::report(message.toUTF8());
    return nullptr;
  }
  // The value may be the text of the attribute that is replaced: it is copied before that one is given back.
  attribute->setValue(value);
  DOMAttr* replaced = element_->getAttributeNode(name);
  if (replaced != nullptr && replaced->isId())
    element_->setIdAttributeNode(replaced, false); // else the document would go on finding the element by it
  element_->setAttributeNode(attribute);
  if (replaced != nullptr)
    replaced->release();
  return attribute;
}

DOMAttr* OrbBaseElement::SetAttribute(const XMLCh* name, const XMLCh* value) { return AddAttribute(name, value); }

unsigned int OrbBaseElement::importAttributes(const DOMNode* from) {
  const xercesc::DOMNamedNodeMap* attributes = from == nullptr ? nullptr : from->getAttributes();
  if (attributes == nullptr)
    return 0;
  const XMLSize_t count = attributes->getLength();
  for (XMLSize_t i = 0; i < count; ++i)
    AddAttribute(attributes->item(i)->getNodeName(), attributes->item(i)->getNodeValue());
  return static_cast<unsigned int>(count);
}

void OrbBaseElement::addID(const XMLCh* id) {
  if (const DOMElement* existing = getElementById(id))
    reportUsedId(id, *existing, *element_);
  if (DOMAttr* attribute = AddAttribute(OrbUni::_id, id))
    element_->setIdAttributeNode(attribute, true);
}

bool OrbBaseElement::doesIdExist(const XMLCh* id) const { return getElementById(id) != nullptr; }

DOMElement* OrbBaseElement::getElementById(const XMLCh* id) const {
  const xercesc::DOMDocument* document = element_->getOwnerDocument();
  return document == nullptr || isEmpty(id) ? nullptr : document->getElementById(id);
}

OrbStyle* OrbBaseElement::getStyleById(const XMLCh* id) const {
  const DOMElement* element = getElementById(id);
  return element == nullptr ? nullptr : static_cast<OrbStyle*>(element->getUserData(OrbUni::_style));
}

OrbVisualization* OrbBaseElement::getVisualization() const {
  const xercesc::DOMDocument* document = element_->getOwnerDocument();
  const DOMElement* root = document == nullptr ? nullptr : document->getDocumentElement();
  return root == nullptr ? nullptr : static_cast<OrbVisualization*>(root->getUserData(OrbUni::_visualization));
}

void OrbBaseElement::InsertBefore(DOMElement* child, std::vector<OrbBaseElement*>& followers) {
  if (child == nullptr || child == element_)
    return;
  std::vector<DOMNode*> elements;
  elements.reserve(followers.size());
  for (const OrbBaseElement* follower : followers)
    elements.push_back(follower == nullptr ? nullptr : follower->getImplementation());
  orbchart::insertBeforeFirst(*element_, *child, elements.data(), elements.size());
}

bool OrbBaseElement::removeChildElement(OrbBaseElement* child) {
  if (child == nullptr || child->element_ == nullptr || child->element_->getParentNode() != element_)
    return false;
  element_->removeChild(child->element_);
  return true;
}

void OrbBaseElement::setComment(const XMLCh* text) {
  if (element_ == nullptr || isEmpty(text) || XMLString::patternMatch(text, u"--") != -1)
    return;
  element_->insertBefore(element_->getOwnerDocument()->createComment(text), element_->getFirstChild());
}

void OrbBaseElement::throwIfChildExists(unsigned long count, unsigned long limit, const std::string& existing,
                                        const std::string& child, const std::string& parent, const std::string& file,
                                        unsigned int line) const {
  if (count <= limit)
    return;
  orbchart::raise("Can not add a " + child + " to a " + parent + " because " + std::to_string(count) + " " + existing +
                      "(s) already exist(s).",
                  file.c_str(), line);
}

ChartString OrbBaseElement::ChildNotFoundError(const XMLCh* name) const {
  std::ostringstream xml;
  ChartPrinter printer;
  std::string bytes;
  if (printer.Print(element_, xml, true)) {
    bytes = xml.str();
    // The line feed at the end of a print is one byte in every encoding.
    bytes.pop_back();
  }
  ChartString message(u"Element ");
  message.append(element_->getTagName());
  message.append(u" found unknown child ");
  message.append(name);
  message.append(u"(");
  message.append(decoded(bytes, element_->getOwnerDocument()->getXmlEncoding()));
  message.append(u"\n)");
  return message;
}
