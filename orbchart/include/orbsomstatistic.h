// A self-organising map, element `SOMStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Lays the rows of a cell out on a self-organising map. It has no operations for an id.
/// \ingroup statistics
class ORBCHART_EXPORT OrbSOMStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_SOMStatistic[] = u"SOMStatistic";
  static constexpr const XMLCh* elementName = _UTF_SOMStatistic;

  static constexpr XMLCh _UTF_sparse[] = u"sparse";

  explicit OrbSOMStatistic(xercesc::DOMElement* element);
  ~OrbSOMStatistic() override;

  /// Whether the data is sparse; false when absent.
  bool getSparse() const;
  void setSparse(bool sparse);
  bool isSparsePresent() const;
  void removeSparse();
};
