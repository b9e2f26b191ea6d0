// The style of a graphic element.
#include "orbstyleby.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbStyleBy::OrbStyleBy(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbStyleBy::~OrbStyleBy() = default;

void OrbStyleBy::removeStyleCycle() { removeAttribute(*this, OrbUni::_styleCycle); }

const XMLCh* OrbStyleBy::getAffects() const { return GetAttribute(OrbUni::_affects); }
void OrbStyleBy::setAffects(const XMLCh* affects) { SetAttribute(OrbUni::_affects, affects); }
void OrbStyleBy::removeAffects() { removeAttribute(*this, OrbUni::_affects); }

bool OrbStyleBy::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbStyleBy::removeMissing() { removeAttribute(*this, _UTF_missing); }
