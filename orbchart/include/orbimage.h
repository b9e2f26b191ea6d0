// The image of a graphic element, element `image`.
#pragma once

#include "ctaesthetic.h"

/// The image of a graphic element.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
class ORBCHART_EXPORT OrbImage : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_image[] = u"image";
  static constexpr const XMLCh* elementName = _UTF_image;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbImage(xercesc::DOMElement* element);
  ~OrbImage() override;

  /// The style cycle that the values run through.
  bool isCyclePresent() const;
  void removeCycle();

  /// The image of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
