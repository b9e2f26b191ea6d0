// A reference to a variable.
#include "orbvariablereference.h"

#include "family.h"
#include "orbelementvariablereference.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbVariableReference::Children : ChildFamilies<FamilyList<OrbElementVariableReference>> {};

OrbVariableReference::OrbVariableReference(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbVariableReference::OrbVariableReference(DOMElement* element, const CTVariableType& variable) :
    OrbVariableReference(element) {
  setRef(variable);
}
OrbVariableReference::~OrbVariableReference() = default;

CTVariableType* OrbVariableReference::getRef() const { return readVariable(*this, OrbUni::_ref); }
void OrbVariableReference::setRef(const CTVariableType& variable) { writeReference(*this, OrbUni::_ref, variable); }

OrbElementVariableReference* OrbVariableReference::addElementVariableReference() {
  return children_->add<OrbElementVariableReference>(*this, atEnd);
}
std::vector<OrbElementVariableReference*> OrbVariableReference::getElementVariableReferences() const {
  return children_->all<OrbElementVariableReference>();
}
unsigned int OrbVariableReference::removeElementVariableReferences() {
  return children_->removeAll<OrbElementVariableReference>(*this);
}
