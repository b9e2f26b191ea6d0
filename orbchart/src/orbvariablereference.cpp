// A reference to a variable.
#include "orbvariablereference.h"

#include "family.h"
#include "orbelementvariablereference.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr VariableReference ref{OrbUni::_ref};

using Attributes = AttributeList<ref>;

using Families = ChildFamilies<FamilyList<OrbElementVariableReference>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbVariableReference>() {
  return elementDescription<OrbVariableReference, Attributes, Families>;
}

struct OrbVariableReference::Children : Families {};

OrbVariableReference::OrbVariableReference(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbVariableReference::OrbVariableReference(DOMElement* element, const CTVariableType& variable) :
    OrbVariableReference(element) {
  setRef(variable);
}
OrbVariableReference::~OrbVariableReference() = default;

CTVariableType* OrbVariableReference::getRef() const { return ref.get(*this); }
void OrbVariableReference::setRef(const CTVariableType& target) { ref.set(*this, target); }

OrbElementVariableReference* OrbVariableReference::addElementVariableReference() {
  return children_->add<OrbElementVariableReference>(*this, atEnd);
}
std::vector<OrbElementVariableReference*> OrbVariableReference::getElementVariableReferences() const {
  return children_->all<OrbElementVariableReference>();
}
unsigned int OrbVariableReference::removeElementVariableReferences() {
  return children_->removeAll<OrbElementVariableReference>(*this);
}
