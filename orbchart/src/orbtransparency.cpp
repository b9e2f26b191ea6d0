// The transparency of a graphic element.
#include "orbtransparency.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbdoublemapping.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords affect{OrbUni::_affect,
                          AbsentReadsAs(OrbTransparency::affect_both),
                          {
                              {OrbTransparency::affect_both, OrbUni::_both},
                              {OrbTransparency::affect_main, OrbUni::_main},
                              {OrbTransparency::affect_secondary, OrbUni::_secondary},
                              {OrbTransparency::affect_stroke, OrbUni::_stroke},
                              {OrbTransparency::affect_fill, OrbUni::_fill},
                          }};
constexpr Double low{OrbUni::_low};
constexpr Double high{OrbUni::_high};
constexpr Double missing{OrbTransparency::_UTF_missing};

using Attributes = AttributeList<affect, low, high, missing>;

using Families = ChildFamilies<FamilyList<OrbDoubleMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTransparency>() {
  return elementDescription<OrbTransparency, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbTransparency::Children : Families {};

OrbTransparency::OrbTransparency(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbTransparency::~OrbTransparency() = default;

OrbTransparency::ENUM_affect OrbTransparency::getAffect() const { return affect.get(*this); }
void OrbTransparency::setAffect(ENUM_affect value) { affect.set(*this, value); }
void OrbTransparency::removeAffect() { affect.remove(*this); }

double OrbTransparency::getLow() const { return low.get(*this); }
void OrbTransparency::setLow(double value) { low.set(*this, value); }
bool OrbTransparency::isLowPresent() const { return low.isPresent(*this); }
void OrbTransparency::removeLow() { low.remove(*this); }

double OrbTransparency::getHigh() const { return high.get(*this); }
void OrbTransparency::setHigh(double value) { high.set(*this, value); }
bool OrbTransparency::isHighPresent() const { return high.isPresent(*this); }
void OrbTransparency::removeHigh() { high.remove(*this); }

double OrbTransparency::getMissing() const { return missing.get(*this); }
void OrbTransparency::setMissing(double value) { missing.set(*this, value); }
bool OrbTransparency::isMissingPresent() const { return missing.isPresent(*this); }
void OrbTransparency::removeMissing() { missing.remove(*this); }

AGAestheticRangeZeroOne OrbTransparency::getAestheticRangeZeroOne() const {
  return AGAestheticRangeZeroOne(getImplementation());
}

OrbDoubleMapping* OrbTransparency::addDoubleMapping() { return children_->add<OrbDoubleMapping>(*this, atEnd); }
std::vector<OrbDoubleMapping*> OrbTransparency::getDoubleMappings() const { return children_->all<OrbDoubleMapping>(); }
unsigned int OrbTransparency::removeDoubleMappings() { return children_->removeAll<OrbDoubleMapping>(*this); }
