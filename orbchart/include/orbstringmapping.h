// Maps a value onto a text, element `stringMapping`.
#pragma once

#include "ctaestheticmapping.h"

/// Maps a value onto a text. The constructor with a value leaves `from` unset.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbStringMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_stringMapping[] = u"stringMapping";
  static constexpr const XMLCh* elementName = _UTF_stringMapping;

  explicit OrbStringMapping(xercesc::DOMElement* element);
  OrbStringMapping(xercesc::DOMElement* element, const XMLCh* to);
  ~OrbStringMapping() override;

  /// The text.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  bool isToPresent() const;
  void removeTo();
};
