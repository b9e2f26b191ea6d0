// The figures of a box plot, element `tukeyStatistic`.
#pragma once

#include "orbbaseelement.h"

/// Summarises the rows of a cell as a box plot shows them.
/// \ingroup statistics
class ORBCHART_EXPORT OrbTukeyStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_tukeyStatistic[] = u"tukeyStatistic";
  static constexpr const XMLCh* elementName = _UTF_tukeyStatistic;

  explicit OrbTukeyStatistic(xercesc::DOMElement* element);
  ~OrbTukeyStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();
};
