// A variable that an expression defines.
#include "orbexpressionvariable.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Text expression{OrbUni::_expression};

using Attributes = AttributeList<expression>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbExpressionVariable>() {
  return elementDescription<OrbExpressionVariable, DerivedFrom<CTVariableType>, Attributes>;
}

OrbExpressionVariable::OrbExpressionVariable(DOMElement* element) : CTVariableType(element) { bind(*this); }
OrbExpressionVariable::OrbExpressionVariable(DOMElement* element, const XMLCh* id) : CTVariableType(element, id) {
  bind(*this);
}
OrbExpressionVariable::~OrbExpressionVariable() = default;

const XMLCh* OrbExpressionVariable::getExpression() const { return expression.get(*this); }
void OrbExpressionVariable::setExpression(const XMLCh* value) { expression.set(*this, value); }
void OrbExpressionVariable::removeExpression() { expression.remove(*this); }
