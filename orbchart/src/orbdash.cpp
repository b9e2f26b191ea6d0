// The dash pattern of the lines of a graphic element.
#include "orbdash.h"

#include "attribute.h"
#include "family.h"
#include "orbdashmapping.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};
constexpr Text missing{OrbDash::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

using Families = ChildFamilies<FamilyList<OrbDashMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDash>() {
  return elementDescription<OrbDash, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbDash::Children : Families {};

OrbDash::OrbDash(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbDash::~OrbDash() = default;

OrbStyleCycle* OrbDash::getCycle() const { return cycle.get(*this); }
void OrbDash::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbDash::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbDash::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbDash::getMissing() const { return missing.get(*this); }
void OrbDash::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbDash::isMissingPresent() const { return missing.isPresent(*this); }
void OrbDash::removeMissing() { missing.remove(*this); }

OrbDashMapping* OrbDash::addDashMapping() { return children_->add<OrbDashMapping>(*this, atEnd); }
std::vector<OrbDashMapping*> OrbDash::getDashMappings() const { return children_->all<OrbDashMapping>(); }
unsigned int OrbDash::removeDashMappings() { return children_->removeAll<OrbDashMapping>(*this); }
