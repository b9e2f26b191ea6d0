// A replication of rows, element `replicate`.
#pragma once

#include "orbbaseelement.h"

/// A replication of rows.
/// \ingroup elements
class ORBCHART_EXPORT OrbReplicate : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_replicate[] = u"replicate";
  static constexpr const XMLCh* elementName = _UTF_replicate;

  explicit OrbReplicate(xercesc::DOMElement* element);
  ~OrbReplicate() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();
};
