// One thing that a legend explains, element `legendTarget`.
#pragma once

#include "orbbaseelement.h"

class CTModifier;
class OrbCategoricalDomain;
class OrbIntervalDomain;

/// One thing that a legend explains.
/// \ingroup guides
class ORBCHART_EXPORT OrbLegendTarget : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_legendTarget[] = u"legendTarget";
  static constexpr const XMLCh* elementName = _UTF_legendTarget;

  static constexpr XMLCh _UTF_domainModifier[] = u"domainModifier";

  explicit OrbLegendTarget(xercesc::DOMElement* element);
  /// The same, and then writes the id and the target. A target without an id is not written.
  OrbLegendTarget(xercesc::DOMElement* element, const XMLCh* id, const OrbBaseElement& target);
  ~OrbLegendTarget() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// What is explained: the element of any class that carries the id, and no wrapper; null when none does.
  xercesc::DOMElement* getTarget() const;
  void setTarget(const OrbBaseElement& target);
  void removeTarget();

  /// The domain that is shown, interval or categorical. Unlike the domain of a dimension it is never null: when the id
  /// leads to no such domain, the getter raises "Attribute Domain refers to <id>, but that element does not exist."
  /// with the text of the attribute, which is empty when absent.
  OrbBaseElement* getDomain() const;
  void setDomain(const OrbIntervalDomain& domain);
  void setDomain(const OrbCategoricalDomain& domain);
  void removeDomain();

  /// A link that goes with the target, free text.
  const XMLCh* getLink() const;
  void setLink(const XMLCh* link);
  void removeLink();

  /// What changes the domain: one that excludes, intersects, replaces or unites, else null. A modifier of another class
  /// writes nothing.
  CTModifier* getDomainModifier() const;
  void setDomainModifier(const CTModifier& modifier);
  bool isDomainModifierPresent() const;
  void removeDomainModifier();
};
