// The symbol of a graphic element.
#include "orbshape.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbShape::OrbShape(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbShape::~OrbShape() = default;

bool OrbShape::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbShape::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }

const XMLCh* OrbShape::getMissing() const { return GetAttribute(_UTF_missing); }
void OrbShape::setMissing(const XMLCh* missing) { SetAttribute(_UTF_missing, missing); }
bool OrbShape::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbShape::removeMissing() { removeAttribute(*this, _UTF_missing); }
