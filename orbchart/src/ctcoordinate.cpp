// What the coordinates of a graphic element share.
#include "ctcoordinate.h"

#include "attribute.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};

using Attributes = AttributeList<id, variable>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTCoordinate>() {
  return elementDescription<CTCoordinate, Attributes>;
}

CTCoordinate::CTCoordinate(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTCoordinate::~CTCoordinate() = default;

const XMLCh* CTCoordinate::getId() const { return id.get(*this); }
void CTCoordinate::setId(const XMLCh* value) { id.set(*this, value); }
void CTCoordinate::removeId() { id.remove(*this); }

CTVariableType* CTCoordinate::getVariable() const { return variable.get(*this); }
void CTCoordinate::setVariable(const CTVariableType& target) { variable.set(*this, target); }
void CTCoordinate::removeVariable() { variable.remove(*this); }

OrbSourceVariable* CTCoordinate::getSourceVariable() const { return variable.getAs<OrbSourceVariable>(*this); }
OrbDerivedVariable* CTCoordinate::getDerivedVariable() const { return variable.getAs<OrbDerivedVariable>(*this); }
OrbExpressionVariable* CTCoordinate::getExpressionVariable() const {
  return variable.getAs<OrbExpressionVariable>(*this);
}
