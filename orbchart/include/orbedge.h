// The edges of a network, element `edge`.
#pragma once

#include "ctelementtype.h"

/// The edges of a network.
/// \ingroup elements
class ORBCHART_EXPORT OrbEdge : public CTElementType {
public:
  static constexpr XMLCh _UTF_edge[] = u"edge";
  static constexpr const XMLCh* elementName = _UTF_edge;

  explicit OrbEdge(xercesc::DOMElement* element);
  ~OrbEdge() override;

  /// Whether lines stay straight under a transform of the coordinates; false when absent.
  bool getPreserveStraightLines() const;
  void setPreserveStraightLines(bool preserveStraightLines);
  bool isPreserveStraightLinesPresent() const;
  void removePreserveStraightLines();
};
