// A group of values with their descriptions.
#include "orbvaluedescription.h"

#include "family.h"
#include "orbvalue.h"

using namespace orbchart;

struct OrbValueDescription::Children : ChildFamilies<FamilyList<OrbValue>> {};

OrbValueDescription::OrbValueDescription(xercesc::DOMElement* element) :
    OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbValueDescription::~OrbValueDescription() = default;

OrbValue* OrbValueDescription::addValue() { return children_->add<OrbValue>(*this, atEnd); }
std::vector<OrbValue*> OrbValueDescription::getValues() const { return children_->all<OrbValue>(); }
unsigned int OrbValueDescription::removeValues() { return children_->removeAll<OrbValue>(*this); }
