// An operator of the graph algebra, element `dot`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbBlend;
class OrbCross;
class OrbNest;
class OrbUnity;
class OrbVariableReference;

/// The operator `dot` of the graph algebra.
///
/// Its operands are its child elements in document order, any number of them, which is the order of their addition. The
/// getters give them family by family: how families interleave is read from the DOM. A removed operand keeps its id.
/// \ingroup graph
class ORBCHART_EXPORT OrbDot : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_dot[] = u"dot";
  static constexpr const XMLCh* elementName = _UTF_dot;

  explicit OrbDot(xercesc::DOMElement* element);
  ~OrbDot() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbVariableReference* addVariableReference();
  std::vector<OrbVariableReference*> getVariableReferences() const;
  unsigned int removeVariableReferences();

  OrbUnity* addUnity();
  std::vector<OrbUnity*> getUnitys() const;
  unsigned int removeUnitys();

  OrbBlend* addBlend();
  std::vector<OrbBlend*> getBlends() const;
  unsigned int removeBlends();

  OrbCross* addCross();
  std::vector<OrbCross*> getCrosss() const;
  unsigned int removeCrosss();

  OrbDot* addDot();
  std::vector<OrbDot*> getDots() const;
  unsigned int removeDots();

  OrbNest* addNest();
  std::vector<OrbNest*> getNests() const;
  unsigned int removeNests();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
