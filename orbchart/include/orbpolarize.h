// The improvement step of a graph layout that polarizes it, element `polarize`.
#pragma once

#include "ctimprovelayout.h"

/// Improves a graph layout by polarizing it. It adds nothing to what all steps have.
/// \ingroup statistics
class ORBCHART_EXPORT OrbPolarize : public CTImproveLayout {
public:
  static constexpr XMLCh _UTF_polarize[] = u"polarize";
  static constexpr const XMLCh* elementName = _UTF_polarize;

  explicit OrbPolarize(xercesc::DOMElement* element);
  ~OrbPolarize() override;
};
