// The rotation of a graphic element, element `rotation`.
#pragma once

#include "ctaesthetic.h"

/// The rotation of a graphic element, in degrees.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbRotation : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_rotation[] = u"rotation";
  static constexpr const XMLCh* elementName = _UTF_rotation;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbRotation(xercesc::DOMElement* element);
  ~OrbRotation() override;

  /// The angles of the lowest and the highest value; any number is written.
  double getLow() const;
  void setLow(double low);
  void removeLow();

  double getHigh() const;
  void setHigh(double high);
  void removeHigh();

  /// The angle of missing values. The setter writes 360 for a number above it and 0 for one below it.
  double getMissing() const;
  void setMissing(double missing);
  bool isMissingPresent() const;
  void removeMissing();
};
