// One term of a union of selections, element `intersect`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAlternating;
class OrbIntersectWhere;
class OrbWhere;

/// One term of a union: what all its selections select.
/// \ingroup graph
class ORBCHART_EXPORT OrbIntersect : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_intersect[] = u"intersect";
  static constexpr const XMLCh* elementName = _UTF_intersect;

  explicit OrbIntersect(xercesc::DOMElement* element);
  ~OrbIntersect() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  OrbWhere* addWhere();
  std::vector<OrbWhere*> getWheres() const;
  unsigned int removeWheres();

  OrbIntersectWhere* addIntersectWhere();
  std::vector<OrbIntersectWhere*> getIntersectWheres() const;
  unsigned int removeIntersectWheres();

  OrbAlternating* addAlternating();
  std::vector<OrbAlternating*> getAlternatings() const;
  unsigned int removeAlternatings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
