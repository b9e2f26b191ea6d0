// A set of variables that together hold the answers to one question.
#include "orbmultipleresponsevariable.h"

#include "attribute.h"
#include "family.h"
#include "orbvariablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean categoryComponents{OrbMultipleResponseVariable::_UTF_categoryComponents};

using Attributes = AttributeList<categoryComponents>;

using Families = ChildFamilies<FamilyList<OrbVariableReference>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMultipleResponseVariable>() {
  return elementDescription<OrbMultipleResponseVariable, DerivedWithoutChildrenFrom<CTVariableType>, Attributes,
                            Families>;
}

struct OrbMultipleResponseVariable::Children : Families {};

OrbMultipleResponseVariable::OrbMultipleResponseVariable(DOMElement* element) :
    CTVariableType(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbMultipleResponseVariable::~OrbMultipleResponseVariable() = default;

bool OrbMultipleResponseVariable::getCategoryComponents() const { return categoryComponents.get(*this); }
void OrbMultipleResponseVariable::setCategoryComponents(bool value) { categoryComponents.set(*this, value); }
bool OrbMultipleResponseVariable::isCategoryComponentsPresent() const { return categoryComponents.isPresent(*this); }
void OrbMultipleResponseVariable::removeCategoryComponents() { categoryComponents.remove(*this); }

OrbVariableReference* OrbMultipleResponseVariable::addVariableReference() {
  return children_->add<OrbVariableReference>(*this, atEnd);
}
std::vector<OrbVariableReference*> OrbMultipleResponseVariable::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbMultipleResponseVariable::removeVariableReferences() {
  return children_->removeAll<OrbVariableReference>(*this);
}
