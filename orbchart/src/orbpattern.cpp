// The fill pattern of a graphic element.
#include "orbpattern.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbPattern::OrbPattern(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbPattern::~OrbPattern() = default;

bool OrbPattern::isCyclePresent() const { return isPresent(*this, OrbUni::_cycle); }
void OrbPattern::removeCycle() { removeAttribute(*this, OrbUni::_cycle); }

unsigned int OrbPattern::getMissing() const { return readUnsigned(*this, _UTF_missing); }
void OrbPattern::setMissing(unsigned int missing) { writeUnsigned(*this, _UTF_missing, missing); }
bool OrbPattern::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbPattern::removeMissing() { removeAttribute(*this, _UTF_missing); }
