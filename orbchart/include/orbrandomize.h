// The improvement step of a graph layout that works at random, element `randomize`.
#pragma once

#include "ctimprovelayout.h"

/// Improves a graph layout by random changes.
/// \ingroup statistics
class ORBCHART_EXPORT OrbRandomize : public CTImproveLayout {
public:
  static constexpr XMLCh _UTF_randomize[] = u"randomize";
  static constexpr const XMLCh* elementName = _UTF_randomize;

  static constexpr XMLCh _UTF_failuresNeededToStop[] = u"failuresNeededToStop";

  explicit OrbRandomize(xercesc::DOMElement* element);
  ~OrbRandomize() override;

  /// The number of failures that end the step; 0 when absent.
  unsigned int getFailuresNeededToStop() const;
  void setFailuresNeededToStop(unsigned int failuresNeededToStop);
  void removeFailuresNeededToStop();
};
