// The dash pattern of the lines of a graphic element, element `dash`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbDashMapping;
class OrbStyleCycle;

/// The dash pattern of the lines of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbDash : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_dash[] = u"dash";
  static constexpr const XMLCh* elementName = _UTF_dash;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbDash(xercesc::DOMElement* element);
  ~OrbDash() override;

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The dash pattern of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbDashMapping* addDashMapping();
  std::vector<OrbDashMapping*> getDashMappings() const;
  unsigned int removeDashMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
