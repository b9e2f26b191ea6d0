// The colour of a graphic element.
#include "orbcolor.h"

#include "attribute.h"
#include "family.h"
#include "keyword.h"
#include "orbcolormapping.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Keywords affect{OrbUni::_affect,
                          OrbColor::affect_unset,
                          {
                              {OrbColor::affect_both, OrbUni::_both},
                              {OrbColor::affect_main, OrbUni::_main},
                              {OrbColor::affect_secondary, OrbUni::_secondary},
                              {OrbColor::affect_stroke, OrbUni::_stroke},
                              {OrbColor::affect_fill, OrbUni::_fill},
                          }};
constexpr Text low{OrbUni::_low};
constexpr Text high{OrbUni::_high};
constexpr Reference<OrbStyleCycle> cycle{OrbUni::_cycle};
constexpr Text missing{OrbColor::_UTF_missing};
constexpr Keywords scale{OrbUni::_scale,
                         OrbColor::scale_unset,
                         {
                             {OrbColor::scale_bipolarBlack, OrbColor::_UTF_scale_bipolarBlack},
                             {OrbColor::scale_bipolarWhite, OrbColor::_UTF_scale_bipolarWhite},
                             {OrbColor::scale_bipolarGray, OrbColor::_UTF_scale_bipolarGray},
                             {OrbColor::scale_bipolarLightGray, OrbColor::_UTF_scale_bipolarLightGray},
                             {OrbColor::scale_bipolarDarkGray, OrbColor::_UTF_scale_bipolarDarkGray},
                             {OrbColor::scale_rainbow, OrbColor::_UTF_scale_rainbow},
                             {OrbColor::scale_circular, OrbColor::_UTF_scale_circular},
                             {OrbColor::scale_temperature, OrbColor::_UTF_scale_temperature},
                             {OrbColor::scale_interpolated, OrbUni::_interpolated},
                         }};

using Attributes = AttributeList<affect, low, high, cycle, missing, scale>;

using Families = ChildFamilies<FamilyList<OrbColorMapping>, Unknown::passes>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbColor>() {
  return elementDescription<OrbColor, DerivedFrom<CTAesthetic>, Attributes, Families>;
}

struct OrbColor::Children : Families {};

OrbColor::OrbColor(xercesc::DOMElement* element) : CTAesthetic(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbColor::~OrbColor() = default;

OrbColor::ENUM_affect OrbColor::getAffect() const { return affect.get(*this); }
void OrbColor::setAffect(ENUM_affect value) { affect.set(*this, value); }
void OrbColor::removeAffect() { affect.remove(*this); }

const XMLCh* OrbColor::getLow() const { return low.get(*this); }
void OrbColor::setLow(const XMLCh* value) { low.set(*this, value); }
bool OrbColor::isLowPresent() const { return low.isPresent(*this); }
void OrbColor::removeLow() { low.remove(*this); }

const XMLCh* OrbColor::getHigh() const { return high.get(*this); }
void OrbColor::setHigh(const XMLCh* value) { high.set(*this, value); }
bool OrbColor::isHighPresent() const { return high.isPresent(*this); }
void OrbColor::removeHigh() { high.remove(*this); }

OrbStyleCycle* OrbColor::getCycle() const { return cycle.get(*this); }
void OrbColor::setCycle(const OrbStyleCycle& target) { cycle.set(*this, target); }
bool OrbColor::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbColor::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbColor::getMissing() const { return missing.get(*this); }
void OrbColor::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbColor::isMissingPresent() const { return missing.isPresent(*this); }
void OrbColor::removeMissing() { missing.remove(*this); }

OrbColor::ENUM_scale OrbColor::getScaleAttribute() const { return scale.get(*this); }
void OrbColor::setScaleAttribute(ENUM_scale value) { scale.set(*this, value); }
bool OrbColor::isScaleAttributePresent() const { return scale.isPresent(*this); }
void OrbColor::removeScaleAttribute() { scale.remove(*this); }

OrbColorMapping* OrbColor::addColorMapping() { return children_->add<OrbColorMapping>(*this, atEnd); }
std::vector<OrbColorMapping*> OrbColor::getColorMappings() const { return children_->all<OrbColorMapping>(); }
unsigned int OrbColor::removeColorMappings() { return children_->removeAll<OrbColorMapping>(*this); }
