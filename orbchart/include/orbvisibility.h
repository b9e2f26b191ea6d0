// Whether a graphic element is seen, element `visibility`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbBooleanMapping;

/// Whether a graphic element is seen.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbVisibility : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_visibility[] = u"visibility";
  static constexpr const XMLCh* elementName = _UTF_visibility;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbVisibility(xercesc::DOMElement* element);
  ~OrbVisibility() override;

  /// Whether the lowest and the highest value are seen; false when absent.
  bool getLow() const;
  void setLow(bool low);
  bool isLowPresent() const;
  void removeLow();

  bool getHigh() const;
  void setHigh(bool high);
  bool isHighPresent() const;
  void removeHigh();

  /// Whether missing values are seen; false when absent.
  bool getMissing() const;
  void setMissing(bool missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbBooleanMapping* addBooleanMapping();
  std::vector<OrbBooleanMapping*> getBooleanMappings() const;
  unsigned int removeBooleanMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
