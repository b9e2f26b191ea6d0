// What the mappings of aesthetics share.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the data onto a visual value.
/// \ingroup aesthetics
class ORBCHART_EXPORT CTAestheticMapping : public OrbBaseElement {
public:
  ~CTAestheticMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The value of the data, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  void removeFrom();

protected:
  explicit CTAestheticMapping(xercesc::DOMElement* element);
  CTAestheticMapping(xercesc::DOMElement* element, const XMLCh* from);
};
