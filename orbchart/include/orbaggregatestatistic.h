// An aggregation of rows, element `aggregateStatistic`.
#pragma once

#include "orbbaseelement.h"

/// An aggregation of the rows of a cell.
/// \ingroup statistics
class ORBCHART_EXPORT OrbAggregateStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_aggregateStatistic[] = u"aggregateStatistic";
  static constexpr const XMLCh* elementName = _UTF_aggregateStatistic;

  explicit OrbAggregateStatistic(xercesc::DOMElement* element);
  ~OrbAggregateStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();
};
