// How far a graphic element is moved, element `offset`.
#pragma once

#include "ctaesthetic.h"

/// How far a graphic element is moved.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbOffset : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_offset[] = u"offset";
  static constexpr const XMLCh* elementName = _UTF_offset;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbOffset(xercesc::DOMElement* element);
  ~OrbOffset() override;

  /// The offsets of the lowest and the highest value, as text.
  const XMLCh* getLow() const;
  void setLow(const XMLCh* low);
  void removeLow();

  const XMLCh* getHigh() const;
  void setHigh(const XMLCh* high);
  void removeHigh();

  /// The offset of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();
};
