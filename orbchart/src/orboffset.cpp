// How far a graphic element is moved.
#include "orboffset.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbOffset::OrbOffset(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbOffset::~OrbOffset() = default;

const XMLCh* OrbOffset::getLow() const { return GetAttribute(OrbUni::_low); }
void OrbOffset::setLow(const XMLCh* low) { SetAttribute(OrbUni::_low, low); }
void OrbOffset::removeLow() { removeAttribute(*this, OrbUni::_low); }

const XMLCh* OrbOffset::getHigh() const { return GetAttribute(OrbUni::_high); }
void OrbOffset::setHigh(const XMLCh* high) { SetAttribute(OrbUni::_high, high); }
void OrbOffset::removeHigh() { removeAttribute(*this, OrbUni::_high); }

const XMLCh* OrbOffset::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbOffset::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbOffset::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbOffset::removeMissing() { removeAttribute(*this, _UTF_missing); }
