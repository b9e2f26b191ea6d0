// One component of the colour of a graphic element.
#include "orbcolorcomponent.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbdoublemapping.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords type{OrbUni::_type,
                        OrbColorComponent::type_unset,
                        {
                            {OrbColorComponent::type_hue, OrbColorComponent::_UTF_type_hue},
                            {OrbColorComponent::type_saturation, OrbColorComponent::_UTF_type_saturation},
                            {OrbColorComponent::type_brightness, OrbColorComponent::_UTF_type_brightness},
                        }};
constexpr Keywords affect{OrbUni::_affect,
                          AbsentReadsAs(OrbColorComponent::affect_both),
                          {
                              {OrbColorComponent::affect_both, OrbUni::_both},
                              {OrbColorComponent::affect_main, OrbUni::_main},
                              {OrbColorComponent::affect_secondary, OrbUni::_secondary},
                              {OrbColorComponent::affect_stroke, OrbUni::_stroke},
                              {OrbColorComponent::affect_fill, OrbUni::_fill},
                          }};
constexpr Double low{OrbUni::_low};
constexpr Double high{OrbUni::_high};
constexpr Double missing{OrbColorComponent::_UTF_missing};

using Attributes = AttributeList<type, affect, low, high, missing>;

using Families = ChildFamilies<FamilyList<OrbDoubleMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbColorComponent>() {
  return elementDescription<OrbColorComponent, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbColorComponent::Children : Families {};

OrbColorComponent::OrbColorComponent(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbColorComponent::~OrbColorComponent() = default;

OrbColorComponent::ENUM_type OrbColorComponent::getType() const { return type.get(*this); }
void OrbColorComponent::setType(ENUM_type value) { type.set(*this, value); }
bool OrbColorComponent::isTypePresent() const { return type.isPresent(*this); }
void OrbColorComponent::removeType() { type.remove(*this); }

OrbColorComponent::ENUM_affect OrbColorComponent::getAffect() const { return affect.get(*this); }
void OrbColorComponent::setAffect(ENUM_affect value) { affect.set(*this, value); }
void OrbColorComponent::removeAffect() { affect.remove(*this); }

double OrbColorComponent::getLow() const { return low.get(*this); }
void OrbColorComponent::setLow(double value) { low.set(*this, value); }
void OrbColorComponent::removeLow() { low.remove(*this); }

double OrbColorComponent::getHigh() const { return high.get(*this); }
void OrbColorComponent::setHigh(double value) { high.set(*this, value); }
void OrbColorComponent::removeHigh() { high.remove(*this); }

double OrbColorComponent::getMissing() const { return missing.get(*this); }
void OrbColorComponent::setMissing(double value) { missing.set(*this, value); }
bool OrbColorComponent::isMissingPresent() const { return missing.isPresent(*this); }
void OrbColorComponent::removeMissing() { missing.remove(*this); }

OrbDoubleMapping* OrbColorComponent::addDoubleMapping() { return children_->add<OrbDoubleMapping>(*this, atEnd); }
std::vector<OrbDoubleMapping*> OrbColorComponent::getDoubleMappings() const {
  return children_->all<OrbDoubleMapping>();
}
unsigned int OrbColorComponent::removeDoubleMappings() { return children_->removeAll<OrbDoubleMapping>(*this); }
