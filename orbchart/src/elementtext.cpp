// The text of an element.
#include "elementtext.h"

#include <xercesc/dom/DOM.hpp>

#include <string>

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace orbchart {

ChartString readText(const OrbBaseElement& wrapper) {
  for (const DOMNode* node = wrapper.getImplementation()->getFirstChild(); node != nullptr;
       node = node->getNextSibling()) {
    if (node->getNodeType() == DOMNode::TEXT_NODE)
      return ChartString(node->getNodeValue());
  }
  return ChartString();
}

ChartString readAllText(const OrbBaseElement& wrapper) {
  ChartString text;
  // An append walks all that it appends to: what follows the first text is gathered before.
  std::basic_string<XMLCh> rest;
  for (const DOMNode* node = wrapper.getImplementation()->getFirstChild(); node != nullptr;
       node = node->getNextSibling()) {
    if (node->getNodeType() != DOMNode::TEXT_NODE)
      continue;
    if (text.empty())
      text.append(node->getNodeValue());
    else
      rest += node->getNodeValue();
  }
  text.append(rest.c_str());
  return text;
}

void writeText(OrbBaseElement& wrapper, const XMLCh* text) {
  clearText(wrapper);
  DOMElement* element = wrapper.getImplementation();
  element->appendChild(element->getOwnerDocument()->createTextNode(text == nullptr ? u"" : text));
}

void clearText(OrbBaseElement& wrapper) {
  DOMElement* element = wrapper.getImplementation();
  for (DOMNode* node = element->getFirstChild(); node != nullptr;) {
    DOMNode* next = node->getNextSibling();
    if (node->getNodeType() == DOMNode::TEXT_NODE) {
      element->removeChild(node);
      // The walk counts positions: what follows a removed node moves into its place and is passed over.
      next = next == nullptr ? nullptr : next->getNextSibling();
    }
    node = next;
  }
}

} // namespace orbchart
