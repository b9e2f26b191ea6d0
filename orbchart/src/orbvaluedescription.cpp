// A group of values with their descriptions.
#include "orbvaluedescription.h"

#include "family.h"
#include "orbdescription2.h"
#include "orbvalue.h"

using namespace orbchart;

namespace {

using Families = ChildFamilies<FamilyList<OrbValue, OrbDescription2>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbValueDescription>() {
  return elementDescription<OrbValueDescription, Families>;
}

struct OrbValueDescription::Children : Families {};

OrbValueDescription::OrbValueDescription(xercesc::DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbValueDescription::~OrbValueDescription() = default;

OrbValue* OrbValueDescription::addValue() { return children_->add<OrbValue>(*this, atEnd); }
std::vector<OrbValue*> OrbValueDescription::getValues() const { return children_->all<OrbValue>(); }
unsigned int OrbValueDescription::removeValues() { return children_->removeAll<OrbValue>(*this); }

OrbDescription2* OrbValueDescription::addDescription() { return children_->add<OrbDescription2>(*this, atEnd); }
std::vector<OrbDescription2*> OrbValueDescription::getDescriptions() const { return children_->all<OrbDescription2>(); }
unsigned int OrbValueDescription::removeDescriptions() { return children_->removeAll<OrbDescription2>(*this); }
