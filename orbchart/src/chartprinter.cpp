// The chart language's line layout, for those who derive from it: the walk itself follows the same rules.
#include "chartprinter.h"

#include "linelayout.h"

#include <xercesc/dom/DOMNode.hpp>

using orbchart::breaksLines;
using orbchart::isText;
using xercesc::DOMNode;
using xercesc::XMLFormatter;

ChartPrinter::~ChartPrinter() = default;

bool ChartPrinter::Print(const xercesc::DOMDocument* document, std::ostream& stream) {
  return DOMPrinter::Print(document, stream);
}

void ChartPrinter::setPrintWhiteSpace(bool printWhiteSpace) { DOMPrinter::setPrintWhiteSpace(printWhiteSpace); }

void ChartPrinter::beginNode(XMLFormatter& formatter, const DOMNode* node) {
  if (printsWhiteSpace() && breaksLines(node->getParentNode()) && !isText(node->getPreviousSibling()))
    beginLine(formatter);
}

void ChartPrinter::endNode(XMLFormatter& formatter, const DOMNode* node) {
  const bool isElement = node->getNodeType() == DOMNode::ELEMENT_NODE;
  if (printsWhiteSpace() && isElement && breaksLines(node) && !isText(node->getLastChild()))
    beginLine(formatter);
}
