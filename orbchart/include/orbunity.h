// The unit of the graph algebra, element `unity`.
#pragma once

#include "orbbaseelement.h"

/// An operand without content. A load does not look at its children.
/// \ingroup graph
class ORBCHART_EXPORT OrbUnity : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_unity[] = u"unity";
  static constexpr const XMLCh* elementName = _UTF_unity;

  explicit OrbUnity(xercesc::DOMElement* element);
  ~OrbUnity() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();
};
