// The operation of a domain modifier that adds its values, element `domainUnion`.
#pragma once

#include "ctmodifier.h"

/// The operation of a domain modifier that adds its values.
/// \ingroup variables
class ORBCHART_EXPORT OrbDomainUnion : public CTModifier {
public:
  static constexpr XMLCh _UTF_domainUnion[] = u"domainUnion";
  static constexpr const XMLCh* elementName = _UTF_domainUnion;

  explicit OrbDomainUnion(xercesc::DOMElement* element);
  ~OrbDomainUnion() override;

  /// The id by which a variable or a dimension refers to it. The document brings it, or the host writes it in the DOM.
  const XMLCh* getId() const;
};
