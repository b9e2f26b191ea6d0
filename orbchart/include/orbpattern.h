// The fill pattern of a graphic element, element `pattern`.
#pragma once

#include "ctaesthetic.h"

/// The fill pattern of a graphic element.
class ORBCHART_EXPORT OrbPattern : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_pattern[] = u"pattern";
  static constexpr const XMLCh* elementName = _UTF_pattern;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbPattern(xercesc::DOMElement* element);
  ~OrbPattern() override;

  /// The style cycle that the values run through.
  bool isCyclePresent() const;
  void removeCycle();

  /// The number of the pattern of missing values.
  unsigned int getMissing() const;
  void setMissing(unsigned int missing);
  bool isMissingPresent() const;
  void removeMissing();
};
