// A union of selections, element `union`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbIntersect;

/// A union of selections: what any of its terms selects.
/// \ingroup graph
class ORBCHART_EXPORT OrbUnion : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_union[] = u"union";
  static constexpr const XMLCh* elementName = _UTF_union;

  explicit OrbUnion(xercesc::DOMElement* element);
  ~OrbUnion() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  OrbIntersect* addIntersect();
  std::vector<OrbIntersect*> getIntersects() const;
  unsigned int removeIntersects();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
