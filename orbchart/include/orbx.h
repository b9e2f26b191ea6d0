// The x coordinate of a graphic element, element `x`.
#pragma once

#include "ctcoordinate.h"

/// The x coordinate of a graphic element.
/// \ingroup elements
class ORBCHART_EXPORT OrbX : public CTCoordinate {
public:
  static constexpr XMLCh _UTF_x[] = u"x";
  static constexpr const XMLCh* elementName = _UTF_x;

  explicit OrbX(xercesc::DOMElement* element);
  ~OrbX() override;
};
