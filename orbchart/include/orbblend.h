// An operator of the graph algebra, element `blend`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbCross;
class OrbDot;
class OrbNest;
class OrbUnity;
class OrbVariableReference;

/// The operator `blend` of the graph algebra.
///
/// Its operands are its child elements in document order, any number of them, which is the order of their addition. The
/// getters give them family by family: how families interleave is read from the DOM. A removed blend, cross or nest
/// loses its id; the other operands keep theirs.
/// \ingroup graph
class ORBCHART_EXPORT OrbBlend : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_blend[] = u"blend";
  static constexpr const XMLCh* elementName = _UTF_blend;

  explicit OrbBlend(xercesc::DOMElement* element);
  ~OrbBlend() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbBlend* addBlend();
  std::vector<OrbBlend*> getBlends() const;
  unsigned int removeBlends();

  OrbCross* addCross();
  std::vector<OrbCross*> getCrosss() const;
  unsigned int removeCrosss();

  OrbNest* addNest();
  std::vector<OrbNest*> getNests() const;
  unsigned int removeNests();

  OrbVariableReference* addVariableReference();
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

  OrbUnity* addUnity();
  std::vector<OrbUnity*> getUnitys() const;
  unsigned int removeUnitys();

  OrbDot* addDot();
  std::vector<OrbDot*> getDots() const;
  unsigned int removeDots();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
