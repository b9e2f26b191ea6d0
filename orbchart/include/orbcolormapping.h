// Maps a value onto a colour, element `colorMapping`.
#pragma once

#include "ctaestheticmapping.h"

/// Maps a value onto a colour. The constructor with a value leaves `from` unset.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbColorMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_colorMapping[] = u"colorMapping";
  static constexpr const XMLCh* elementName = _UTF_colorMapping;

  explicit OrbColorMapping(xercesc::DOMElement* element);
  OrbColorMapping(xercesc::DOMElement* element, const XMLCh* to);
  ~OrbColorMapping() override;

  /// The colour, as text.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  void removeTo();
};
