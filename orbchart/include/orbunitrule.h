// A factor that scales values into units, element `unitRule`.
#pragma once

#include "orbbaseelement.h"

/// Scales values by a factor, and says what stands around them then.
/// \ingroup style
class ORBCHART_EXPORT OrbUnitRule : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_unitRule[] = u"unitRule";
  static constexpr const XMLCh* elementName = _UTF_unitRule;

  explicit OrbUnitRule(xercesc::DOMElement* element);
  OrbUnitRule(xercesc::DOMElement* element, double factor);
  ~OrbUnitRule() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The text in front of a scaled value.
  const XMLCh* getPrefix() const;
  void setPrefix(const XMLCh* prefix);
  void removePrefix();

  /// The text behind a scaled value.
  const XMLCh* getSuffix() const;
  void setSuffix(const XMLCh* suffix);
  void removeSuffix();

  /// The factor; 0.0 when absent. Once written it cannot be removed.
  double getFactor() const;
  void setFactor(double factor);
};
