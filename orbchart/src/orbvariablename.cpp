// Names of a variable with the scopes in which they hold.
#include "orbvariablename.h"

#include "family.h"
#include "orbname.h"
#include "orbscope.h"

using namespace orbchart;

namespace {

using Families = ChildFamilies<FamilyList<OrbName, OrbScope>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbVariableName>() {
  return elementDescription<OrbVariableName, Families>;
}

struct OrbVariableName::Children : Families {};

OrbVariableName::OrbVariableName(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbVariableName::~OrbVariableName() = default;

OrbName* OrbVariableName::addName() { return children_->add<OrbName>(*this, atEnd); }
std::vector<OrbName*> OrbVariableName::getNames() const { return children_->all<OrbName>(); }
unsigned int OrbVariableName::removeNames() { return children_->removeAll<OrbName>(*this); }

OrbScope* OrbVariableName::addScope() { return children_->add<OrbScope>(*this, atEnd); }
std::vector<OrbScope*> OrbVariableName::getScopes() const { return children_->all<OrbScope>(); }
unsigned int OrbVariableName::removeScopes() { return children_->removeAll<OrbScope>(*this); }
