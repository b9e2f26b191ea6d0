// The image of a graphic element, element `image`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbStringMapping;
class OrbStyleCycle;

/// The image of a graphic element.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbImage : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_image[] = u"image";
  static constexpr const XMLCh* elementName = _UTF_image;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbImage(xercesc::DOMElement* element);
  ~OrbImage() override;

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The image of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbStringMapping* addStringMapping();
  std::vector<OrbStringMapping*> getStringMappings() const;
  unsigned int removeStringMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
