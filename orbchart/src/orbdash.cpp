// The dash pattern of the lines of a graphic element.
#include "orbdash.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbDash::OrbDash(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbDash::~OrbDash() = default;

bool OrbDash::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbDash::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }

const XMLCh* OrbDash::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbDash::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbDash::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbDash::removeMissing() { removeAttribute(*this, _UTF_missing); }
