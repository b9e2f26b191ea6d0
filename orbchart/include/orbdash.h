// The dash pattern of the lines of a graphic element, element `dash`.
#pragma once

#include "ctaesthetic.h"

/// The dash pattern of the lines of a graphic element.
class ORBCHART_EXPORT OrbDash : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_dash[] = u"dash";
  static constexpr const XMLCh* elementName = _UTF_dash;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbDash(xercesc::DOMElement* element);
  ~OrbDash() override;

  /// The style cycle that the values run through.
  bool isCyclePresent() const;
  void removeCycle();

  /// The dash pattern of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();
};
