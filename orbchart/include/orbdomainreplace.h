// The operation of a domain modifier that puts its values in place, element `domainReplace`.
#pragma once

#include "ctmodifier.h"

/// The operation of a domain modifier that puts its values in place.
/// \ingroup variables
class ORBCHART_EXPORT OrbDomainReplace : public CTModifier {
public:
  static constexpr XMLCh _UTF_domainReplace[] = u"domainReplace";
  static constexpr const XMLCh* elementName = _UTF_domainReplace;

  explicit OrbDomainReplace(xercesc::DOMElement* element);
  ~OrbDomainReplace() override;

  /// The id by which a variable or a dimension refers to it. The document brings it, or the host writes it in the DOM.
  const XMLCh* getId() const;
};
