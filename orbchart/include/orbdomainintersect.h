// The operation of a domain modifier that keeps what is among its values, element `domainIntersect`.
#pragma once

#include "ctmodifier.h"

/// The operation of a domain modifier that keeps what is among its values.
/// \ingroup variables
class ORBCHART_EXPORT OrbDomainIntersect : public CTModifier {
public:
  static constexpr XMLCh _UTF_domainIntersect[] = u"domainIntersect";
  static constexpr const XMLCh* elementName = _UTF_domainIntersect;

  explicit OrbDomainIntersect(xercesc::DOMElement* element);
  ~OrbDomainIntersect() override;

  /// The id by which a variable or a dimension refers to it. The document brings it, or the host writes it in the DOM.
  const XMLCh* getId() const;
};
