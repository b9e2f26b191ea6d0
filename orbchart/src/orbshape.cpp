// The symbol of a graphic element.
#include "orbshape.h"

#include "attribute.h"
#include "family.h"
#include "orbstylecycle.h"
#include "orbsymbolmapping.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};
constexpr Text missing{OrbShape::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

using Families = ChildFamilies<FamilyList<OrbSymbolMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbShape>() {
  return elementDescription<OrbShape, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbShape::Children : Families {};

OrbShape::OrbShape(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbShape::~OrbShape() = default;

OrbStyleCycle* OrbShape::getCycle() const { return cycle.get(*this); }
void OrbShape::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbShape::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbShape::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbShape::getMissing() const { return missing.get(*this); }
void OrbShape::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbShape::isMissingPresent() const { return missing.isPresent(*this); }
void OrbShape::removeMissing() { missing.remove(*this); }

OrbSymbolMapping* OrbShape::addSymbolMapping() { return children_->add<OrbSymbolMapping>(*this, atEnd); }
std::vector<OrbSymbolMapping*> OrbShape::getSymbolMappings() const { return children_->all<OrbSymbolMapping>(); }
unsigned int OrbShape::removeSymbolMappings() { return children_->removeAll<OrbSymbolMapping>(*this); }
