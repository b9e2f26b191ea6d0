// The size of a graphic element.
#include "orbsize.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orblengthmapping.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Keywords type{OrbUni::_type,
                        OrbSize::type_unset,
                        {
                            {OrbSize::type_all, OrbSize::_UTF_type_all},
                            {OrbSize::type_width, OrbUni::_width},
                            {OrbSize::type_height, OrbUni::_height},
                            {OrbSize::type_depth, OrbUni::_depth},
                            {OrbSize::type_aspect, OrbUni::_aspect},
                        }};
constexpr Text low{OrbUni::_low};
constexpr Text high{OrbUni::_high};
constexpr Text missing{OrbSize::_UTF_missing};
constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};

using Attributes = AttributeList<type, low, high, missing, cycle>;

using Families = ChildFamilies<FamilyList<OrbLengthMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSize>() {
  return elementDescription<OrbSize, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbSize::Children : Families {};

OrbSize::OrbSize(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbSize::~OrbSize() = default;

OrbSize::ENUM_type OrbSize::getType() const { return type.get(*this); }
void OrbSize::setType(ENUM_type value) { type.set(*this, value); }
bool OrbSize::isTypePresent() const { return type.isPresent(*this); }
void OrbSize::removeType() { type.remove(*this); }

const XMLCh* OrbSize::getLow() const { return low.get(*this); }
void OrbSize::setLow(const XMLCh* value) { low.set(*this, value); }
void OrbSize::removeLow() { low.remove(*this); }

const XMLCh* OrbSize::getHigh() const { return high.get(*this); }
void OrbSize::setHigh(const XMLCh* value) { high.set(*this, value); }
void OrbSize::removeHigh() { high.remove(*this); }

const XMLCh* OrbSize::getMissing() const { return missing.get(*this); }
void OrbSize::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbSize::isMissingPresent() const { return missing.isPresent(*this); }
void OrbSize::removeMissing() { missing.remove(*this); }

OrbStyleCycle* OrbSize::getCycle() const { return cycle.get(*this); }
void OrbSize::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbSize::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbSize::removeCycle() { cycle.remove(*this); }

AGAestheticRangeLengths OrbSize::getAestheticRangeLengths() const {
  return AGAestheticRangeLengths(getImplementation());
}

OrbLengthMapping* OrbSize::addLengthMapping() { return children_->add<OrbLengthMapping>(*this, atEnd); }
std::vector<OrbLengthMapping*> OrbSize::getLengthMappings() const { return children_->all<OrbLengthMapping>(); }
unsigned int OrbSize::removeLengthMappings() { return children_->removeAll<OrbLengthMapping>(*this); }
