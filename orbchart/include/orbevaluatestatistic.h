// An evaluation at a point, element `evaluateStatistic`.
#pragma once

#include "orbbaseelement.h"

/// An evaluation at a point.
/// \ingroup statistics
class ORBCHART_EXPORT OrbEvaluateStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_evaluateStatistic[] = u"evaluateStatistic";
  static constexpr const XMLCh* elementName = _UTF_evaluateStatistic;

  explicit OrbEvaluateStatistic(xercesc::DOMElement* element);
  OrbEvaluateStatistic(xercesc::DOMElement* element, const XMLCh* x);
  ~OrbEvaluateStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The point at which to evaluate, as text.
  const XMLCh* getX() const;
  void setX(const XMLCh* x);
  bool isXPresent() const;
  void removeX();
};
