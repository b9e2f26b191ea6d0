// The writer with the chart language's own line layout: what holds text stays on one line.
#pragma once

#include "domprinter.h"

/// Prints like DOMPrinter, save that the children of label and of descriptionGroup are written without line breaks and
/// the closing tags of these two follow at once. A node whose parent is neither an element nor a document begins no
/// line.
/// \ingroup documents
class ORBCHART_EXPORT ChartPrinter : public DOMPrinter {
public:
  static constexpr XMLCh _label[] = u"label";
  static constexpr XMLCh _descriptionGroup[] = u"descriptionGroup";

  using DOMPrinter::Print;

  ChartPrinter() = default;
  ~ChartPrinter() override;

  bool Print(const xercesc::DOMDocument* document, std::ostream& stream) override;
  void setPrintWhiteSpace(bool printWhiteSpace) override;
  void beginNode(xercesc::XMLFormatter& formatter, const xercesc::DOMNode* node) override;
  void endNode(xercesc::XMLFormatter& formatter, const xercesc::DOMNode* node) override;
};
