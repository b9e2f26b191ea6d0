// A set of variables that together hold the answers to one question.
#include "orbmultipleresponsevariable.h"

#include "attribute.h"
#include "family.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

struct OrbMultipleResponseVariable::Children : ChildFamilies<FamilyList<OrbVariableReference>> {};

OrbMultipleResponseVariable::OrbMultipleResponseVariable(DOMElement* element) :
    CTVariableType(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbMultipleResponseVariable::~OrbMultipleResponseVariable() = default;

bool OrbMultipleResponseVariable::getCategoryComponents() const { return readBoolean(*this, _UTF_categoryComponents); }
void OrbMultipleResponseVariable::setCategoryComponents(bool categoryComponents) {
  writeBoolean(*this, _UTF_categoryComponents, categoryComponents);
}
bool OrbMultipleResponseVariable::isCategoryComponentsPresent() const {
  return isPresent(*this, _UTF_categoryComponents);
}
void OrbMultipleResponseVariable::removeCategoryComponents() { removeAttribute(*this, _UTF_categoryComponents); }

OrbVariableReference* OrbMultipleResponseVariable::addVariableReference() {
  return children_->add<OrbVariableReference>(*this, atEnd);
}
std::vector<OrbVariableReference*> OrbMultipleResponseVariable::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbMultipleResponseVariable::removeVariableReferences() {
  return children_->removeAll<OrbVariableReference>(*this);
}
