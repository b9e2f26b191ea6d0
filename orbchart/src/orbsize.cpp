// The size of a graphic element.
#include "orbsize.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keyword<OrbSize::ENUM_type> types[] = {
    {OrbSize::type_all, OrbSize::_UTF_type_all}, {OrbSize::type_width, OrbUni::_width},
    {OrbSize::type_height, OrbUni::_height},     {OrbSize::type_depth, OrbUni::_depth},
    {OrbSize::type_aspect, OrbUni::_aspect},
};

} // namespace

OrbSize::OrbSize(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbSize::~OrbSize() = default;

OrbSize::ENUM_type OrbSize::getType() const { return readKeyword(*this, OrbUni::_type, types, type_unset); }
void OrbSize::setType(ENUM_type type) { writeKeyword(*this, OrbUni::_type, types, type); }
bool OrbSize::isTypePresent() const { return isPresent(*this, OrbUni::_type); }
void OrbSize::removeType() { removeAttribute(*this, OrbUni::_type); }

const XMLCh* OrbSize::getLow() const { return GetAttribute(OrbUni::_low); }
void OrbSize::setLow(const XMLCh* low) { SetAttribute(OrbUni::_low, low); }
void OrbSize::removeLow() { removeAttribute(*this, OrbUni::_low); }

const XMLCh* OrbSize::getHigh() const { return GetAttribute(OrbUni::_high); }
void OrbSize::setHigh(const XMLCh* high) { SetAttribute(OrbUni::_high, high); }
void OrbSize::removeHigh() { removeAttribute(*this, OrbUni::_high); }

const XMLCh* OrbSize::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbSize::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbSize::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbSize::removeMissing() { removeAttribute(*this, _UTF_missing); }

bool OrbSize::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbSize::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }
