// The style of a graphic element, element `styleBy`.
#pragma once

#include "ctaesthetic.h"

class OrbStyleCycle;

/// The style of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbStyleBy : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_styleBy[] = u"styleBy";
  static constexpr const XMLCh* elementName = _UTF_styleBy;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbStyleBy(xercesc::DOMElement* element);
  ~OrbStyleBy() override;

  /// The style cycle that the values run through.
  OrbStyleCycle* getStyleCycle() const;
  void setStyleCycle(const OrbStyleCycle& styleCycle);
  void removeStyleCycle();

  const XMLCh* getAffects() const;
  void setAffects(const XMLCh* affects);
  void removeAffects();

  /// The style cycle of missing values: a reference in this class alone.
  OrbStyleCycle* getMissing() const;
  void setMissing(const OrbStyleCycle& missing);
  bool isMissingPresent() const;
  void removeMissing();
};
