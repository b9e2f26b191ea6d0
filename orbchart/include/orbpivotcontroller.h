// The control of pivoting, element `pivotController`.
#pragma once

#include "ctinteraction.h"

/// Lets the viewer exchange the variables of the chart's dimensions.
/// \ingroup interaction
class ORBCHART_EXPORT OrbPivotController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_pivotController[] = u"pivotController";
  static constexpr const XMLCh* elementName = _UTF_pivotController;

  explicit OrbPivotController(xercesc::DOMElement* element);
  ~OrbPivotController() override;
};
