// A collection of rows, element `collectRowsStatistic`.
#pragma once

#include "orbbaseelement.h"

/// A collection of the rows of a cell.
/// \ingroup statistics
class ORBCHART_EXPORT OrbCollectRowsStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_collectRowsStatistic[] = u"collectRowsStatistic";
  static constexpr const XMLCh* elementName = _UTF_collectRowsStatistic;

  explicit OrbCollectRowsStatistic(xercesc::DOMElement* element);
  ~OrbCollectRowsStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();
};
