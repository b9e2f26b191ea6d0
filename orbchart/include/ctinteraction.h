// What the elements of interaction share.
#pragma once

#include "orbbaseelement.h"

/// A behaviour of the chart when a viewer acts on it. It is described here and performed by whoever draws the chart.
/// \ingroup interaction
class ORBCHART_EXPORT CTInteraction : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_active[] = u"active";

  ~CTInteraction() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// Whether the behaviour is switched on; false when absent.
  bool getActive() const;
  void setActive(bool active);
  bool isActivePresent() const;
  void removeActive();

protected:
  explicit CTInteraction(xercesc::DOMElement* element);
};
