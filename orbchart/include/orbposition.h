// A coordinate of a graphic element, one of any number, element `position`.
#pragma once

#include "ctcoordinate.h"

/// A coordinate of a graphic element, one of any number.
/// \ingroup elements
class ORBCHART_EXPORT OrbPosition : public CTCoordinate {
public:
  static constexpr XMLCh _UTF_position[] = u"position";
  static constexpr const XMLCh* elementName = _UTF_position;

  explicit OrbPosition(xercesc::DOMElement* element);
  ~OrbPosition() override;
};
