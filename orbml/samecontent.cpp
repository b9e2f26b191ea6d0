// Whether two documents hold the same, however they are laid out.
#include "samecontent.h"

#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLString.hpp>

using xercesc::DOMDocument;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::XMLString;

namespace {

bool isLayout(const DOMNode& node) {
  const XMLCh* text = node.getNodeValue();
  return node.getNodeType() == DOMNode::TEXT_NODE && xercesc::XMLChar1_0::isAllSpaces(text, XMLString::stringLen(text));
}

/// The next node of a document that is no layout, and how many levels deeper or higher it stands. Documents may be
/// deep, so that nothing recurs.
class Walk {
public:
  explicit Walk(const DOMDocument& document) : node_(&document) {}
  const DOMNode* node() const { return node_; }
  int level() const { return level_; }

  void advance() {
    do
      step();
    while (node_ != nullptr && isLayout(*node_));
  }

private:
  void step() {
    if (const DOMNode* child = node_->getFirstChild()) {
      node_ = child;
      ++level_;
      return;
    }
    while (node_ != nullptr && node_->getNextSibling() == nullptr) {
      node_ = node_->getParentNode();
      --level_;
    }
    if (node_ != nullptr)
      node_ = node_->getNextSibling();
  }

  const DOMNode* node_;
  int level_ = 0;
};

bool haveSameAttributes(const DOMNode& one, const DOMNode& other) {
  const DOMNamedNodeMap* ones = one.getAttributes();
  const DOMNamedNodeMap* others = other.getAttributes();
  const XMLSize_t count = ones == nullptr ? 0 : ones->getLength();
  if (count != (others == nullptr ? 0 : others->getLength()))
    return false;
  for (XMLSize_t i = 0; i < count; ++i) {
    const DOMNode* match = others->getNamedItem(ones->item(i)->getNodeName());
    if (match == nullptr || !XMLString::equals(match->getNodeValue(), ones->item(i)->getNodeValue()))
      return false;
  }
  return true;
}

bool areSame(const DOMNode& one, const DOMNode& other) {
  return one.getNodeType() == other.getNodeType() && XMLString::equals(one.getNodeName(), other.getNodeName()) &&
         XMLString::equals(one.getNodeValue(), other.getNodeValue()) && haveSameAttributes(one, other);
}

} // namespace

bool holdTheSame(const DOMDocument& one, const DOMDocument& other) {
  Walk ones(one);
  Walk others(other);
  while (ones.node() != nullptr && others.node() != nullptr) {
    if (ones.level() != others.level() || !areSame(*ones.node(), *others.node()))
      return false;
    ones.advance();
    others.advance();
  }
  return ones.node() == others.node();
}
