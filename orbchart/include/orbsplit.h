// Splits a graphic element by a variable, element `split`.
#pragma once

#include "ctaesthetic.h"

/// Splits a graphic element by a variable.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbSplit : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_split[] = u"split";
  static constexpr const XMLCh* elementName = _UTF_split;

  explicit OrbSplit(xercesc::DOMElement* element);
  ~OrbSplit() override;
};
