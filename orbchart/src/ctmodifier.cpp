// What the operations of a domain modifier share.
#include "ctmodifier.h"

#include "family.h"
#include "orbcategories2.h"
#include "orbrange.h"
#include "orbvariablereference.h"

using namespace orbchart;

namespace {

using Families = ChildFamilies<FamilyList<OrbVariableReference, OrbCategories2, OrbRange>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTModifier>() {
  return elementDescription<CTModifier, Families>;
}

struct CTModifier::Children : Families {};

CTModifier::CTModifier(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTModifier::~CTModifier() = default;

OrbVariableReference* CTModifier::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> CTModifier::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int CTModifier::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbCategories2* CTModifier::addCategories2() { return children_->add<OrbCategories2>(*this, atEnd); }
std::vector<OrbCategories2*> CTModifier::getCategories2s() const { return children_->all<OrbCategories2>(); }
unsigned int CTModifier::removeCategories2s() { return children_->removeAll<OrbCategories2>(*this); }

OrbRange* CTModifier::addRange() { return children_->add<OrbRange>(*this, atEnd); }
std::vector<OrbRange*> CTModifier::getRanges() const { return children_->all<OrbRange>(); }
unsigned int CTModifier::removeRanges() { return children_->removeAll<OrbRange>(*this); }
