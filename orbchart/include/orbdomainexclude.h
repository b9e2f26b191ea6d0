// The operation of a domain modifier that takes its values away, element `domainExclude`.
#pragma once

#include "ctmodifier.h"

/// The operation of a domain modifier that takes its values away.
/// \ingroup variables
class ORBCHART_EXPORT OrbDomainExclude : public CTModifier {
public:
  static constexpr XMLCh _UTF_domainExclude[] = u"domainExclude";
  static constexpr const XMLCh* elementName = _UTF_domainExclude;

  explicit OrbDomainExclude(xercesc::DOMElement* element);
  ~OrbDomainExclude() override;

  /// The id by which a variable or a dimension refers to it. The document brings it, or the host writes it in the DOM.
  const XMLCh* getId() const;
};
