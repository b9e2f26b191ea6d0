// What the coordinates of a graphic element share.
#include "ctcoordinate.h"

#include "attribute.h"
#include "orbuni.h"
#include "reference.h"
#include "variablereference.h"

using namespace orbchart;

CTCoordinate::CTCoordinate(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTCoordinate::~CTCoordinate() = default;

const XMLCh* CTCoordinate::getId() const { return GetAttribute(OrbUni::_id); }
void CTCoordinate::setId(const XMLCh* id) { writeId(*this, id); }
void CTCoordinate::removeId() { removeAttribute(*this, OrbUni::_id); }

CTVariableType* CTCoordinate::getVariable() const { return readVariable(*this, OrbUni::_variable); }
void CTCoordinate::setVariable(const CTVariableType& variable) { writeReference(*this, OrbUni::_variable, variable); }
void CTCoordinate::removeVariable() { removeAttribute(*this, OrbUni::_variable); }

OrbSourceVariable* CTCoordinate::getSourceVariable() const {
  return readReference<OrbSourceVariable>(*this, OrbUni::_variable);
}
OrbDerivedVariable* CTCoordinate::getDerivedVariable() const {
  return readReference<OrbDerivedVariable>(*this, OrbUni::_variable);
}
OrbExpressionVariable* CTCoordinate::getExpressionVariable() const {
  return readReference<OrbExpressionVariable>(*this, OrbUni::_variable);
}
