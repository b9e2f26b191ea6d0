// Points, element `point`.
#pragma once

#include "ctelementtype.h"

/// Points, each drawn as a symbol.
/// \ingroup elements
class ORBCHART_EXPORT OrbPoint : public CTElementType {
public:
  static constexpr XMLCh _UTF_point[] = u"point";
  static constexpr const XMLCh* elementName = _UTF_point;

  explicit OrbPoint(xercesc::DOMElement* element);
  OrbPoint(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbPoint() override;
};
