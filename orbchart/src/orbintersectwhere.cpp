// A condition on two variables.
#include "orbintersectwhere.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

OrbIntersectWhere::OrbIntersectWhere(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbIntersectWhere::OrbIntersectWhere(DOMElement* element, const CTVariableType& variable,
                                     const CTVariableType& variable2) :
    OrbIntersectWhere(element) {
  setVariable(variable);
  setVariable2(variable2);
}
OrbIntersectWhere::~OrbIntersectWhere() = default;

const XMLCh* OrbIntersectWhere::getId() const { return GetAttribute(OrbUni::_id); }
void OrbIntersectWhere::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbIntersectWhere::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbIntersectWhere::removeId() { removeAttribute(*this, OrbUni::_id); }

CTVariableType* OrbIntersectWhere::getVariable() const { return readVariable(*this, OrbUni::_variable); }
void OrbIntersectWhere::setVariable(const CTVariableType& variable) {
  writeReference(*this, OrbUni::_variable, variable);
}
bool OrbIntersectWhere::isVariablePresent() const { return isPresent(*this, OrbUni::_variable); }
void OrbIntersectWhere::removeVariable() { removeAttribute(*this, OrbUni::_variable); }

CTVariableType* OrbIntersectWhere::getVariable2() const { return readVariable(*this, _UTF_variable2); }
void OrbIntersectWhere::setVariable2(const CTVariableType& variable) {
  writeReference(*this, _UTF_variable2, variable);
}
bool OrbIntersectWhere::isVariable2Present() const { return isPresent(*this, _UTF_variable2); }
void OrbIntersectWhere::removeVariable2() { removeAttribute(*this, _UTF_variable2); }
