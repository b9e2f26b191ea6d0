// The fill pattern of a graphic element, element `pattern`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbIntegerMapping;
class OrbStyleCycle;

/// The fill pattern of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbPattern : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_pattern[] = u"pattern";
  static constexpr const XMLCh* elementName = _UTF_pattern;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbPattern(xercesc::DOMElement* element);
  ~OrbPattern() override;

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The number of the pattern of missing values.
  unsigned int getMissing() const;
  void setMissing(unsigned int missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbIntegerMapping* addIntegerMapping();
  std::vector<OrbIntegerMapping*> getIntegerMappings() const;
  unsigned int removeIntegerMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
