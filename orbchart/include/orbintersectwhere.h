// A condition on two variables, element `intersectWhere`.
#pragma once

#include "orbbaseelement.h"

class CTVariableType;

/// A condition on two variables together.
/// \ingroup graph
class ORBCHART_EXPORT OrbIntersectWhere : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_intersectWhere[] = u"intersectWhere";
  static constexpr const XMLCh* elementName = _UTF_intersectWhere;

  static constexpr XMLCh _UTF_variable2[] = u"variable2";

  explicit OrbIntersectWhere(xercesc::DOMElement* element);
  OrbIntersectWhere(xercesc::DOMElement* element, const CTVariableType& variable, const CTVariableType& variable2);
  ~OrbIntersectWhere() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The first variable: a source, derived or expression variable, else null.
  CTVariableType* getVariable() const;
  void setVariable(const CTVariableType& variable);
  bool isVariablePresent() const;
  void removeVariable();

  /// The second variable: a source, derived or expression variable, else null.
  CTVariableType* getVariable2() const;
  void setVariable2(const CTVariableType& variable);
  bool isVariable2Present() const;
  void removeVariable2();
};
