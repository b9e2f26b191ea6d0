// The symbol of a graphic element, element `shape`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbStyleCycle;
class OrbSymbolMapping;

/// The symbol of a graphic element.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbShape : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_shape[] = u"shape";
  static constexpr const XMLCh* elementName = _UTF_shape;

  static constexpr XMLCh _UTF_missing[] = u"missing";

  explicit OrbShape(xercesc::DOMElement* element);
  ~OrbShape() override;

  /// The style cycle that the values run through.
  OrbStyleCycle* getCycle() const;
  void setCycle(const OrbStyleCycle& cycle);
  bool isCyclePresent() const;
  void removeCycle();

  /// The symbol of missing values.
  const XMLCh* getMissing() const;
  void setMissing(const XMLCh* missing);
  bool isMissingPresent() const;
  void removeMissing();

  /// The values that are mapped one by one.
  OrbSymbolMapping* addSymbolMapping();
  std::vector<OrbSymbolMapping*> getSymbolMappings() const;
  unsigned int removeSymbolMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
