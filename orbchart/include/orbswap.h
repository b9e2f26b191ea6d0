// The improvement step of a graph layout that swaps nodes, element `swap`.
#pragma once

#include "ctimprovelayout.h"

/// Improves a graph layout by swapping nodes. It adds nothing to what all steps have.
/// \ingroup statistics
class ORBCHART_EXPORT OrbSwap : public CTImproveLayout {
public:
  static constexpr XMLCh _UTF_swap[] = u"swap";
  static constexpr const XMLCh* elementName = _UTF_swap;

  explicit OrbSwap(xercesc::DOMElement* element);
  ~OrbSwap() override;
};
