// The colour of a graphic element.
#include "orbcolor.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbColor::ENUM_affect> affects[] = {
    {OrbColor::affect_both, OrbUni::_both},           {OrbColor::affect_main, OrbUni::_main},
    {OrbColor::affect_secondary, OrbUni::_secondary}, {OrbColor::affect_stroke, OrbUni::_stroke},
    {OrbColor::affect_fill, OrbUni::_fill},
};

constexpr Keyword<OrbColor::ENUM_scale> scales[] = {
    {OrbColor::scale_bipolarBlack, OrbColor::_UTF_scale_bipolarBlack},
    {OrbColor::scale_bipolarWhite, OrbColor::_UTF_scale_bipolarWhite},
    {OrbColor::scale_bipolarGray, OrbColor::_UTF_scale_bipolarGray},
    {OrbColor::scale_bipolarLightGray, OrbColor::_UTF_scale_bipolarLightGray},
    {OrbColor::scale_bipolarDarkGray, OrbColor::_UTF_scale_bipolarDarkGray},
    {OrbColor::scale_rainbow, OrbColor::_UTF_scale_rainbow},
    {OrbColor::scale_circular, OrbColor::_UTF_scale_circular},
    {OrbColor::scale_temperature, OrbColor::_UTF_scale_temperature},
    {OrbColor::scale_interpolated, OrbUni::_interpolated},
};

} // namespace

OrbColor::OrbColor(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbColor::~OrbColor() = default;

OrbColor::ENUM_affect OrbColor::getAffect() const { return readKeyword(*this, OrbUni::_affect, affects, affect_unset); }
void OrbColor::setAffect(ENUM_affect affect) { writeKeyword(*this, OrbUni::_affect, affects, affect); }
void OrbColor::removeAffect() { removeAttribute(*this, OrbUni::_affect); }

const XMLCh* OrbColor::getLow() const { return GetAttribute(OrbUni::_low); }
void OrbColor::setLow(const XMLCh* low) { SetAttribute(OrbUni::_low, low); }
bool OrbColor::isLowPresent() const { return isPresent(*this, OrbUni::_low); }
void OrbColor::removeLow() { removeAttribute(*this, OrbUni::_low); }

const XMLCh* OrbColor::getHigh() const { return GetAttribute(OrbUni::_high); }
void OrbColor::setHigh(const XMLCh* high) { SetAttribute(OrbUni::_high, high); }
bool OrbColor::isHighPresent() const { return isPresent(*this, OrbUni::_high); }
void OrbColor::removeHigh() { removeAttribute(*this, OrbUni::_high); }

bool OrbColor::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbColor::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }

const XMLCh* OrbColor::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbColor::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbColor::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbColor::removeMissing() { removeAttribute(*this, _UTF_missing); }

OrbColor::ENUM_scale OrbColor::getScaleAttribute() const {
  return readKeyword(*this, OrbUni::_scale, scales, scale_unset);
}
void OrbColor::setScaleAttribute(ENUM_scale scale) { writeKeyword(*this, OrbUni::_scale, scales, scale); }
bool OrbColor::isScaleAttributePresent() const { return isPresent(*this, OrbUni::_scale); }
void OrbColor::removeScaleAttribute() { removeAttribute(*this, OrbUni::_scale); }
