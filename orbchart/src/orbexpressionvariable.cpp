// A variable that an expression defines.
#include "orbexpressionvariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbExpressionVariable::OrbExpressionVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbExpressionVariable::OrbExpressionVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbExpressionVariable::~OrbExpressionVariable() = default;

const XMLCh* OrbExpressionVariable::getExpression() const { return GetAttribute(OrbUni::_expression); }
void OrbExpressionVariable::setExpression(const XMLCh* expression) { SetAttribute(OrbUni::_expression, expression); }
void OrbExpressionVariable::removeExpression() { removeAttribute(*this, OrbUni::_expression); }
