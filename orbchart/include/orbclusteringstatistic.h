// A clustering of rows, element `clusteringStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Gathers the rows of a cell in clusters. It has no operations for an id.
/// \ingroup statistics
class ORBCHART_EXPORT OrbClusteringStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_clusteringStatistic[] = u"clusteringStatistic";
  static constexpr const XMLCh* elementName = _UTF_clusteringStatistic;

  static constexpr XMLCh _UTF_variables[] = u"variables";

  explicit OrbClusteringStatistic(xercesc::DOMElement* element);
  ~OrbClusteringStatistic() override;

  /// The variables to cluster on, as one text.
  const XMLCh* getVariables() const;
  void setVariables(const XMLCh* variables);
  bool isVariablesPresent() const;
  void removeVariables();
};
