// Bars, element `interval`.
#pragma once

#include "ctelementtype.h"

/// Intervals, drawn as bars.
/// \ingroup elements
class ORBCHART_EXPORT OrbInterval : public CTElementType {
public:
  static constexpr XMLCh _UTF_interval[] = u"interval";
  static constexpr const XMLCh* elementName = _UTF_interval;

  static constexpr XMLCh _UTF_centerIn3D[] = u"centerIn3D";

  explicit OrbInterval(xercesc::DOMElement* element);
  OrbInterval(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbInterval() override;

  /// Whether the bars are centred in 3D; false when absent.
  bool getCenterIn3D() const;
  void setCenterIn3D(bool centerIn3D);
  void removeCenterIn3D();
};
