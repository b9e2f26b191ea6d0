// Maps a value onto yes or no, element `booleanMapping`.
#pragma once

#include "ctaestheticmapping.h"

/// Maps a value onto yes or no. The constructor with a value leaves `from` unset.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbBooleanMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_booleanMapping[] = u"booleanMapping";
  static constexpr const XMLCh* elementName = _UTF_booleanMapping;

  explicit OrbBooleanMapping(xercesc::DOMElement* element);
  OrbBooleanMapping(xercesc::DOMElement* element, bool to);
  ~OrbBooleanMapping() override;

  /// Whether the value is seen; false when absent.
  bool getTo() const;
  void setTo(bool to);
  bool isToPresent() const;
  void removeTo();
};
