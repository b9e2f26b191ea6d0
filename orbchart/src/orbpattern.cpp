// The fill pattern of a graphic element.
#include "orbpattern.h"

#include "attribute.h"
#include "family.h"
#include "orbintegermapping.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};
constexpr Unsigned missing{OrbPattern::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

using Families = ChildFamilies<FamilyList<OrbIntegerMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPattern>() {
  return elementDescription<OrbPattern, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbPattern::Children : Families {};

OrbPattern::OrbPattern(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbPattern::~OrbPattern() = default;

OrbStyleCycle* OrbPattern::getCycle() const { return cycle.get(*this); }
void OrbPattern::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbPattern::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbPattern::removeCycle() { cycle.remove(*this); }

unsigned int OrbPattern::getMissing() const { return missing.get(*this); }
void OrbPattern::setMissing(unsigned int value) { missing.set(*this, value); }
bool OrbPattern::isMissingPresent() const { return missing.isPresent(*this); }
void OrbPattern::removeMissing() { missing.remove(*this); }

OrbIntegerMapping* OrbPattern::addIntegerMapping() { return children_->add<OrbIntegerMapping>(*this, atEnd); }
std::vector<OrbIntegerMapping*> OrbPattern::getIntegerMappings() const { return children_->all<OrbIntegerMapping>(); }
unsigned int OrbPattern::removeIntegerMappings() { return children_->removeAll<OrbIntegerMapping>(*this); }
