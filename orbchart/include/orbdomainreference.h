// A reference to a domain, element `domainReference`.
#pragma once

#include "orbbaseelement.h"

class OrbCategoricalDomain;
class OrbIntervalDomain;

/// A domain takes up the values of another one.
/// \ingroup variables
class ORBCHART_EXPORT OrbDomainReference : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_domainReference[] = u"domainReference";
  static constexpr const XMLCh* elementName = _UTF_domainReference;

  explicit OrbDomainReference(xercesc::DOMElement* element);
  OrbDomainReference(xercesc::DOMElement* element, const OrbIntervalDomain& domain);
  OrbDomainReference(xercesc::DOMElement* element, const OrbCategoricalDomain& domain);
  ~OrbDomainReference() override;

  /// The domain, categorical or interval; null for an element of another class. When no element carries the id, the
  /// getter raises "Attribute Ref refers to <id>, but that element does not exist." with the text of the attribute,
  /// which is empty when absent. Once written it cannot be removed.
  OrbBaseElement* getRef() const;
  void setRef(const OrbIntervalDomain& domain);
  void setRef(const OrbCategoricalDomain& domain);
};
