// One pass over a document.
#include "chartscan.h"

#include "attributevalue.h"
#include "loading.h"
#include "messagetext.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/framework/XMLAttr.hpp>
#include <xercesc/framework/XMLElementDecl.hpp>

using xercesc::DOMDocument;
using xercesc::DOMNode;

namespace orbchart {

/// Makes what a scanner tells into what a scan is told. A scanner is behind what it tells of, so that the place where
/// something begins is that at which it was before.
class ChartScan::Events : private xercesc::XMLDocumentHandler, public ChartScanner {
public:
  explicit Events(ChartScan& scan) : ChartScanner(static_cast<xercesc::XMLDocumentHandler&>(*this)), scan_(scan) {}

private:
  /// The place where what is told of now begins. The next thing begins where the scanner is.
  Place begin() {
    const Place place = next_;
    next_ = here();
    return place;
  }

  void foundDocumentType(Place place) override { scan_.addDocumentType(place); }

  void startElement(const xercesc::XMLElementDecl& declaration, unsigned int /*uri*/, const XMLCh* /*prefix*/,
                    const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes, XMLSize_t count, bool isEmpty,
                    bool /*isRoot*/) override {
    scan_.attributes_.clear();
    for (XMLSize_t i = 0; i < count; ++i) {
      const xercesc::XMLAttr* attribute = attributes.elementAt(i);
      scan_.attributes_.push_back({attribute->getQName(), attribute->getValue()});
    }
    scan_.beginElement(declaration.getFullName(), scan_.attributes_, begin());
    if (isEmpty)
      scan_.endElement();
  }
  void endElement(const xercesc::XMLElementDecl& /*declaration*/, unsigned int /*uri*/, bool /*isRoot*/,
                  const XMLCh* /*prefix*/) override {
    scan_.endElement();
    begin();
  }
  void docCharacters(const XMLCh* text, XMLSize_t length, bool /*isCData*/) override {
    scan_.addText({text, length}, begin());
  }
  void ignorableWhitespace(const XMLCh* /*text*/, XMLSize_t /*length*/, bool /*isCData*/) override { begin(); }
  void docComment(const XMLCh* /*text*/) override { scan_.addContent(begin()); }
  void docPI(const XMLCh* /*target*/, const XMLCh* /*data*/) override { scan_.addContent(begin()); }
  void XMLDecl(const XMLCh* /*version*/, const XMLCh* /*encoding*/, const XMLCh* /*standalone*/,
               const XMLCh* /*actualEncoding*/) override {
    begin();
  }
  void startDocument() override {}
  void endDocument() override {}
  void resetDocument() override {}
  void startEntityReference(const xercesc::XMLEntityDecl& /*entity*/) override {}
  void endEntityReference(const xercesc::XMLEntityDecl& /*entity*/) override {}

  ChartScan& scan_;
  Place next_;
};

ChartScan::ChartScan() = default;
ChartScan::~ChartScan() = default;

void ChartScan::scan(const ChartInput& input) {
  events_ = std::make_unique<Events>(*this);
  events_->scan(input);
}

void ChartScan::scan(const DOMDocument& document) {
  if (document.getDoctype() != nullptr)
    addDocumentType({0, 0});
  // The nodes that come after the open ones. Asking a node for its parent costs more.
  std::vector<const DOMNode*> rests;
  const DOMNode* node = document.getDocumentElement();
  while (node != nullptr) {
    addNode(*node);
    // What an entity reference stands for is looked at as if it stood there.
    if (const DOMNode* first = node->getFirstChild()) {
      rests.push_back(node);
      node = first;
      continue;
    }
    for (;;) {
      if (node->getNodeType() == DOMNode::ELEMENT_NODE)
        endElement();
      if (rests.empty())
        return;
      if (const DOMNode* next = node->getNextSibling()) {
        node = next;
        break;
      }
      node = rests.back();
      rests.pop_back();
    }
  }
}

/// Begins an element of a DOM, or takes a text into the open one.
void ChartScan::addNode(const DOMNode& node) {
  constexpr Place place{0, 0};
  switch (node.getNodeType()) {
  case DOMNode::ELEMENT_NODE: {
    attributes_.clear();
    const xercesc::DOMNamedNodeMap* attributes = node.getAttributes();
    for (XMLSize_t i = 0; i < attributes->getLength(); ++i)
      attributes_.push_back({attributes->item(i)->getNodeName(), attributeValue(*attributes->item(i))});
    beginElement(node.getNodeName(), attributes_, place);
    break;
  }
  case DOMNode::TEXT_NODE:
  case DOMNode::CDATA_SECTION_NODE:
    addText(node.getNodeValue(), place);
    break;
  default:
    addContent(place);
  }
}

void ChartScan::beginElement(TextView name, std::span<const ScannedAttribute> attributes, Place place) {
  const Language& language = Language::get();
  if (!open_.empty())
    open_.push_back(childOf(open_.back(), name, place));
  else if (name == language.root().name)
    open_.push_back({name, Standing::known, &language.root(), nullptr, place});
  else
    open_.push_back({name, Standing::unknown, nullptr, nullptr, place});
  foundElement(attributes);
  if (open_.back().standing == Standing::tooDeep)
    addTooDeep(place);
  if (attributes.size() > mostOfAKind)
    foundFault({place, moreThanMost("attributes in one element")});
}

void ChartScan::endElement() {
  leaveElement();
  open_.pop_back();
}

OpenElement ChartScan::childOf(const OpenElement& parent, TextView name, Place place) const {
  const auto standing = [&](Standing one) { return OpenElement{name, one, nullptr, nullptr, place}; };
  if (parent.standing != Standing::known && parent.standing != Standing::passedOver)
    return standing(Standing::lost);
  if (open_.size() > maximumNesting)
    return standing(Standing::tooDeep);
  if (parent.standing == Standing::passedOver || parent.element->isFree)
    return standing(Standing::passedOver);
  const LanguageChild* child = parent.element->child(name);
  if (child != nullptr && child->isLoaded)
    return {name, Standing::known, child->element, child, place};
  return standing(parent.element->passesOverUnknownChildren ? Standing::passedOver : Standing::unknown);
}

void ChartScan::addText(TextView text, Place place) {
  addContent(place);
  foundText(text, place);
}

/// A load counts the content of an element as one more level, save where it looks at no content.
void ChartScan::addContent(Place place) {
  if (open_.size() <= maximumNesting || open_.back().standing == Standing::tooDeep ||
      open_.back().standing == Standing::lost)
    return;
  const LanguageElement* element = open_.back().element;
  if (element == nullptr || !element->children.empty())
    addTooDeep(place);
}

void ChartScan::addDocumentType(Place place) { foundFault({place, std::string(documentTypeRefused)}); }

/// A document that is too deep is so once.
void ChartScan::addTooDeep(Place place) {
  if (!isTooDeep_)
    foundFault({place, nestedTooDeep()});
  isTooDeep_ = true;
}

} // namespace orbchart
