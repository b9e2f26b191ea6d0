// One component of the colour of a graphic element.
#include "orbcolorcomponent.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbColorComponent::ENUM_type> types[] = {
    {OrbColorComponent::type_hue, OrbColorComponent::_UTF_type_hue},
    {OrbColorComponent::type_saturation, OrbColorComponent::_UTF_type_saturation},
    {OrbColorComponent::type_brightness, OrbColorComponent::_UTF_type_brightness},
};

constexpr Keyword<OrbColorComponent::ENUM_affect> affects[] = {
    {OrbColorComponent::affect_both, OrbUni::_both},           {OrbColorComponent::affect_main, OrbUni::_main},
    {OrbColorComponent::affect_secondary, OrbUni::_secondary}, {OrbColorComponent::affect_stroke, OrbUni::_stroke},
    {OrbColorComponent::affect_fill, OrbUni::_fill},
};

} // namespace

OrbColorComponent::OrbColorComponent(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbColorComponent::~OrbColorComponent() = default;

OrbColorComponent::ENUM_type OrbColorComponent::getType() const {
  return readKeyword(*this, OrbUni::_type, types, type_unset);
}
void OrbColorComponent::setType(ENUM_type type) { writeKeyword(*this, OrbUni::_type, types, type); }
bool OrbColorComponent::isTypePresent() const { return isPresent(*this, OrbUni::_type); }
void OrbColorComponent::removeType() { removeAttribute(*this, OrbUni::_type); }

OrbColorComponent::ENUM_affect OrbColorComponent::getAffect() const {
  return readKeyword(*this, OrbUni::_affect, affects, affect_both);
}
void OrbColorComponent::setAffect(ENUM_affect affect) { writeKeyword(*this, OrbUni::_affect, affects, affect); }
void OrbColorComponent::removeAffect() { removeAttribute(*this, OrbUni::_affect); }

double OrbColorComponent::getLow() const { return readDouble(*this, OrbUni::_low); }
void OrbColorComponent::setLow(double low) { writeDouble(*this, OrbUni::_low, low); }
void OrbColorComponent::removeLow() { removeAttribute(*this, OrbUni::_low); }

double OrbColorComponent::getHigh() const { return readDouble(*this, OrbUni::_high); }
void OrbColorComponent::setHigh(double high) { writeDouble(*this, OrbUni::_high, high); }
void OrbColorComponent::removeHigh() { removeAttribute(*this, OrbUni::_high); }

double OrbColorComponent::getMissing() const { return readDouble(*this, _UTF_missing); }
void OrbColorComponent::setMissing(double missing) { writeDouble(*this, _UTF_missing, missing); }
bool OrbColorComponent::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbColorComponent::removeMissing() { removeAttribute(*this, _UTF_missing); }
