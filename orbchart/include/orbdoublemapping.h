// Maps a value onto a number, element `doubleMapping`.
#pragma once

#include "ctaestheticmapping.h"

/// Maps a value onto a number. The constructor with a value leaves `from` unset.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbDoubleMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_doubleMapping[] = u"doubleMapping";
  static constexpr const XMLCh* elementName = _UTF_doubleMapping;

  explicit OrbDoubleMapping(xercesc::DOMElement* element);
  OrbDoubleMapping(xercesc::DOMElement* element, double to);
  ~OrbDoubleMapping() override;

  /// The number; 0.0 when absent.
  double getTo() const;
  void setTo(double to);
  void removeTo();
};
