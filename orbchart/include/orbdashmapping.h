// Maps a value onto a dash pattern, element `dashMapping`.
#pragma once

#include "orbbaseelement.h"

/// Maps a value of the data onto a dash pattern.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbDashMapping : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_dashMapping[] = u"dashMapping";
  static constexpr const XMLCh* elementName = _UTF_dashMapping;

  explicit OrbDashMapping(xercesc::DOMElement* element);
  OrbDashMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to);
  ~OrbDashMapping() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The value of the data, as text.
  const XMLCh* getFrom() const;
  void setFrom(const XMLCh* from);
  void removeFrom();

  /// The dash pattern.
  const XMLCh* getTo() const;
  void setTo(const XMLCh* to);
  void removeTo();
};
