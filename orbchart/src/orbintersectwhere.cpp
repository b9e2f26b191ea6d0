// A condition on two variables.
#include "orbintersectwhere.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};
constexpr VariableReference variable2{OrbIntersectWhere::_UTF_variable2};

using Attributes = AttributeList<id, variable, variable2>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbIntersectWhere>() {
  return elementDescription<OrbIntersectWhere, Attributes>;
}

OrbIntersectWhere::OrbIntersectWhere(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbIntersectWhere::OrbIntersectWhere(DOMElement* element, const CTVariableType& variable,
                                     const CTVariableType& variable2) :
    OrbIntersectWhere(element) {
  setVariable(variable);
  setVariable2(variable2);
}
OrbIntersectWhere::~OrbIntersectWhere() = default;

const XMLCh* OrbIntersectWhere::getId() const { return id.get(*this); }
void OrbIntersectWhere::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbIntersectWhere::isIdPresent() const { return id.isPresent(*this); }
void OrbIntersectWhere::removeId() { id.remove(*this); }

CTVariableType* OrbIntersectWhere::getVariable() const { return variable.get(*this); }
void OrbIntersectWhere::setVariable(const CTVariableType& target) { variable.set(*this, target); }
bool OrbIntersectWhere::isVariablePresent() const { return variable.isPresent(*this); }
void OrbIntersectWhere::removeVariable() { variable.remove(*this); }

CTVariableType* OrbIntersectWhere::getVariable2() const { return variable2.get(*this); }
void OrbIntersectWhere::setVariable2(const CTVariableType& target) { variable2.set(*this, target); }
bool OrbIntersectWhere::isVariable2Present() const { return variable2.isPresent(*this); }
void OrbIntersectWhere::removeVariable2() { variable2.remove(*this); }
