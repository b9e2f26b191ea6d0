// A variable reference for one graphic element, element `elementVariableReference`.
#pragma once

#include "orbbaseelement.h"

class CTElementType;
class CTVariableType;

/// Ties one graphic element to a variable, within a variable reference. A load does not look at its children.
/// \ingroup variables
class ORBCHART_EXPORT OrbElementVariableReference : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_elementVariableReference[] = u"elementVariableReference";
  static constexpr const XMLCh* elementName = _UTF_elementVariableReference;

  explicit OrbElementVariableReference(xercesc::DOMElement* element);
  ~OrbElementVariableReference() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// The graphic element. The getter is always null, whatever the attribute holds: the id is read from the DOM.
  CTElementType* getElement() const;
  void setElement(const CTElementType& element);
  bool isElementPresent() const;
  void removeElement();

  /// The variable. The getter is always null, whatever the attribute holds: the id is read from the DOM.
  CTVariableType* getRef() const;
  void setRef(const CTVariableType& variable);
  bool isRefPresent() const;
  void removeRef();
};
