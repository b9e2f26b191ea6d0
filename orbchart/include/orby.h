// The y coordinate of a graphic element, element `y`.
#pragma once

#include "ctcoordinate.h"

/// The y coordinate of a graphic element.
/// \ingroup elements
class ORBCHART_EXPORT OrbY : public CTCoordinate {
public:
  static constexpr XMLCh _UTF_y[] = u"y";
  static constexpr const XMLCh* elementName = _UTF_y;

  explicit OrbY(xercesc::DOMElement* element);
  ~OrbY() override;
};
