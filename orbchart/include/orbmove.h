// The improvement step of a graph layout that moves nodes, element `move`.
#pragma once

#include "ctimprovelayout.h"

/// Improves a graph layout by moving nodes.
/// \ingroup statistics
class ORBCHART_EXPORT OrbMove : public CTImproveLayout {
public:
  static constexpr XMLCh _UTF_move[] = u"move";
  static constexpr const XMLCh* elementName = _UTF_move;

  static constexpr XMLCh _UTF_initialDistance[] = u"initialDistance";
  static constexpr XMLCh _UTF_reductionFactor[] = u"reductionFactor";

  explicit OrbMove(xercesc::DOMElement* element);
  ~OrbMove() override;

  /// The distance of the first moves; 0.0 when absent.
  double getInitialDistance() const;
  void setInitialDistance(double initialDistance);
  void removeInitialDistance();

  /// The factor by which the distance shrinks; 0.0 when absent.
  double getReductionFactor() const;
  void setReductionFactor(double reductionFactor);
  void removeReductionFactor();
};
