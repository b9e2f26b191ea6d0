// The transparency of a graphic element.
#include "orbtransparency.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbTransparency::ENUM_affect> affects[] = {
    {OrbTransparency::affect_both, OrbUni::_both},           {OrbTransparency::affect_main, OrbUni::_main},
    {OrbTransparency::affect_secondary, OrbUni::_secondary}, {OrbTransparency::affect_stroke, OrbUni::_stroke},
    {OrbTransparency::affect_fill, OrbUni::_fill},
};

} // namespace

OrbTransparency::OrbTransparency(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbTransparency::~OrbTransparency() = default;

OrbTransparency::ENUM_affect OrbTransparency::getAffect() const {
  return readKeyword(*this, OrbUni::_affect, affects, affect_both);
}
void OrbTransparency::setAffect(ENUM_affect affect) { writeKeyword(*this, OrbUni::_affect, affects, affect); }
void OrbTransparency::removeAffect() { removeAttribute(*this, OrbUni::_affect); }

double OrbTransparency::getLow() const { return readDouble(*this, OrbUni::_low); }
void OrbTransparency::setLow(double low) { writeDouble(*this, OrbUni::_low, low); }
bool OrbTransparency::isLowPresent() const { return isPresent(*this, OrbUni::_low); }
void OrbTransparency::removeLow() { removeAttribute(*this, OrbUni::_low); }

double OrbTransparency::getHigh() const { return readDouble(*this, OrbUni::_high); }
void OrbTransparency::setHigh(double high) { writeDouble(*this, OrbUni::_high, high); }
bool OrbTransparency::isHighPresent() const { return isPresent(*this, OrbUni::_high); }
void OrbTransparency::removeHigh() { removeAttribute(*this, OrbUni::_high); }

double OrbTransparency::getMissing() const { return readDouble(*this, _UTF_missing); }
void OrbTransparency::setMissing(double missing) { writeDouble(*this, _UTF_missing, missing); }
bool OrbTransparency::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbTransparency::removeMissing() { removeAttribute(*this, _UTF_missing); }
