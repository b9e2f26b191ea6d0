// The rotation of a graphic element, in degrees.
#include "orbrotation.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbRotation::OrbRotation(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbRotation::~OrbRotation() = default;

double OrbRotation::getLow() const { return readDouble(*this, OrbUni::_low); }
void OrbRotation::setLow(double low) { writeDouble(*this, OrbUni::_low, low); }
void OrbRotation::removeLow() { removeAttribute(*this, OrbUni::_low); }

double OrbRotation::getHigh() const { return readDouble(*this, OrbUni::_high); }
void OrbRotation::setHigh(double high) { writeDouble(*this, OrbUni::_high, high); }
void OrbRotation::removeHigh() { removeAttribute(*this, OrbUni::_high); }

double OrbRotation::getMissing() const { return readDouble(*this, _UTF_missing); }
void OrbRotation::setMissing(double missing) {
  if (missing > 360.0)
    writeInteger(*this, _UTF_missing, 360);
  else if (missing < 0.0)
    writeInteger(*this, _UTF_missing, 0);
  else
    writeDouble(*this, _UTF_missing, missing);
}
bool OrbRotation::isMissingPresent() const { return isPresent(*this, _UTF_missing); }
void OrbRotation::removeMissing() { removeAttribute(*this, _UTF_missing); }
