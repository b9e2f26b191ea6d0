// The symbol of a graphic element, element `shape`.
#pragma once

#include "ctaesthetic.h"

/// The symbol of a graphic element.
class ORBCHART_EXPORT OrbShape : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_shape[] = u"shape";
  static constexpr const XMLCh* elementName = _UTF_shape;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbShape(xercesc::DOMElement* element);
  ~OrbShape() override;

  /// The style cycle that the values run through.
  bool isCyclePresent() const;
  void removeCycle();

  /// The symbol of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();
};
