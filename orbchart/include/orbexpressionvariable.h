// A variable that an expression defines, element `expressionVariable`.
#pragma once

#include "ctvariabletype.h"

/// A variable that an expression defines.
/// \ingroup variables
class ORBCHART_EXPORT OrbExpressionVariable : public CTVariableType {
public:
  static constexpr XMLCh _UTF_expressionVariable[] = u"expressionVariable";
  static constexpr const XMLCh* elementName = _UTF_expressionVariable;

  explicit OrbExpressionVariable(xercesc::DOMElement* element);
  OrbExpressionVariable(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbExpressionVariable() override;

  const XMLCh* getExpression() const;
  void setExpression(const XMLCh* expression);
  void removeExpression();
};
