// The z coordinate of a graphic element, element `z`.
#pragma once

#include "ctcoordinate.h"

/// The z coordinate of a graphic element.
/// \ingroup elements
class ORBCHART_EXPORT OrbZ : public CTCoordinate {
public:
  static constexpr XMLCh _UTF_z[] = u"z";
  static constexpr const XMLCh* elementName = _UTF_z;

  explicit OrbZ(xercesc::DOMElement* element);
  ~OrbZ() override;
};
