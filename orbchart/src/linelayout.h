// Where the chart language breaks its lines, for the printer that says so and for the walk that does it.
#pragma once

#include "chartprinter.h"

#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XMLString.hpp>

namespace orbchart {

inline bool isText(const xercesc::DOMNode* node) {
  return node != nullptr && node->getNodeType() == xercesc::DOMNode::TEXT_NODE;
}

/// The elements that are written on one line, children and closing tag.
inline bool staysOnOneLine(const XMLCh* elementName) {
  return xercesc::XMLString::equals(elementName, ChartPrinter::_label) ||
         xercesc::XMLString::equals(elementName, ChartPrinter::_descriptionGroup);
}

/// Whether the children of a node begin lines of their own.
inline bool breaksLines(const xercesc::DOMNode* parent) {
  if (parent == nullptr)
    return false;
  if (parent->getNodeType() == xercesc::DOMNode::ELEMENT_NODE)
    return !staysOnOneLine(parent->getNodeName());
  return parent->getNodeType() == xercesc::DOMNode::DOCUMENT_NODE;
}

} // namespace orbchart
