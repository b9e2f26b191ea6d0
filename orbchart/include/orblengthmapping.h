// Maps a value onto a length, element `lengthMapping`.
#pragma once

#include "ctaestheticmapping.h"

/// Maps a value onto a length. The constructor with a value leaves `from` unset.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbLengthMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_lengthMapping[] = u"lengthMapping";
  static constexpr const XMLCh* elementName = _UTF_lengthMapping;

  explicit OrbLengthMapping(xercesc::DOMElement* element);
  OrbLengthMapping(xercesc::DOMElement* element, const XMLCh* to);
  ~OrbLengthMapping() override;

  /// The length, with its unit if any.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  void removeTo();
};
