// Polygons, element `polygon`.
#pragma once

#include "ctelementtype.h"

/// Polygons.
/// \ingroup elements
class ORBCHART_EXPORT OrbPolygon : public CTElementType {
public:
  static constexpr XMLCh _UTF_polygon[] = u"polygon";
  static constexpr const XMLCh* elementName = _UTF_polygon;

  explicit OrbPolygon(xercesc::DOMElement* element);
  OrbPolygon(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbPolygon() override;

  /// Whether lines stay straight under a transform of the coordinates; false when absent.
  bool getPreserveStraightLines() const;
  void setPreserveStraightLines(bool preserveStraightLines);
  void removePreserveStraightLines();
};
