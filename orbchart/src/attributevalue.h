// The value of an attribute node, read the short way, and what counts as no value.
#pragma once

#include "linelayout.h"

#include <xercesc/dom/DOMNode.hpp>

namespace orbchart {

inline bool isEmpty(const XMLCh* text) { return text == nullptr || *text == 0; }

/// An attribute's value is nearly always one text. To ask for that spares the DOM's own, slower way to it.
inline const XMLCh* attributeValue(const xercesc::DOMNode& attribute) {
  const xercesc::DOMNode* text = attribute.getFirstChild();
  return isText(text) && text->getNextSibling() == nullptr ? text->getNodeValue() : attribute.getNodeValue();
}

} // namespace orbchart
