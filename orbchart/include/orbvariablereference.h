// A reference to a variable, element `variableReference`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbElementVariableReference;

/// A reference to one variable: an operand of the graph algebra, and a child of what works on a list of variables.
/// \ingroup variables
class ORBCHART_EXPORT OrbVariableReference : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_variableReference[] = u"variableReference";
  static constexpr const XMLCh* elementName = _UTF_variableReference;

  explicit OrbVariableReference(xercesc::DOMElement* element);
  OrbVariableReference(xercesc::DOMElement* element, const CTVariableType& variable);
  ~OrbVariableReference() override;

  /// The variable: a source, derived or expression variable, else null. Once written it can be replaced and not
  /// removed.
  CTVariableType* getRef() const;
  void setRef(const CTVariableType& variable);

  /// What single graphic elements take in place of the variable. A new one has no attributes.
  OrbElementVariableReference* addElementVariableReference();
  std::vector<OrbElementVariableReference*> getElementVariableReferences() const;
  unsigned int removeElementVariableReferences();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
