// Whether a graphic element is seen.
#include "orbvisibility.h"

#include "attribute.h"
#include "family.h"
#include "orbbooleanmapping.h"
#include "orbuni.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean low{OrbUni::_low};
constexpr Boolean high{OrbUni::_high};
constexpr Boolean missing{OrbVisibility::_UTF_missing};

using Attributes = AttributeList<low, high, missing>;

using Families = ChildFamilies<FamilyList<OrbBooleanMapping>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbVisibility>() {
  return elementDescription<OrbVisibility, DerivedWithoutChildrenFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbVisibility::Children : Families {};

OrbVisibility::OrbVisibility(DOMElement* element) : CTAesthetic(element, WithoutChildren()), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbVisibility::~OrbVisibility() = default;

bool OrbVisibility::getLow() const { return low.get(*this); }
void OrbVisibility::setLow(bool value) { low.set(*this, value); }
bool OrbVisibility::isLowPresent() const { return low.isPresent(*this); }
void OrbVisibility::removeLow() { low.remove(*this); }

bool OrbVisibility::getHigh() const { return high.get(*this); }
void OrbVisibility::setHigh(bool value) { high.set(*this, value); }
bool OrbVisibility::isHighPresent() const { return high.isPresent(*this); }
void OrbVisibility::removeHigh() { high.remove(*this); }

bool OrbVisibility::getMissing() const { return missing.get(*this); }
void OrbVisibility::setMissing(bool value) { missing.set(*this, value); }
bool OrbVisibility::isMissingPresent() const { return missing.isPresent(*this); }
void OrbVisibility::removeMissing() { missing.remove(*this); }

OrbBooleanMapping* OrbVisibility::addBooleanMapping() { return children_->add<OrbBooleanMapping>(*this, atEnd); }
std::vector<OrbBooleanMapping*> OrbVisibility::getBooleanMappings() const {
  return children_->all<OrbBooleanMapping>();
}
unsigned int OrbVisibility::removeBooleanMappings() { return children_->removeAll<OrbBooleanMapping>(*this); }
