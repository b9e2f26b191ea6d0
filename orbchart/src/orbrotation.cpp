// The rotation of a graphic element, in degrees.
#include "orbrotation.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Double low{OrbUni::_low};
constexpr Double high{OrbUni::_high};
constexpr Double missing{OrbRotation::_UTF_missing};

using Attributes = AttributeList<low, high, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRotation>() {
  return elementDescription<OrbRotation, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbRotation::OrbRotation(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbRotation::~OrbRotation() = default;

double OrbRotation::getLow() const { return low.get(*this); }
void OrbRotation::setLow(double value) { low.set(*this, value); }
void OrbRotation::removeLow() { low.remove(*this); }

double OrbRotation::getHigh() const { return high.get(*this); }
void OrbRotation::setHigh(double value) { high.set(*this, value); }
void OrbRotation::removeHigh() { high.remove(*this); }

double OrbRotation::getMissing() const { return missing.get(*this); }
// Alone among the setters it keeps its value within bounds.
void OrbRotation::setMissing(double value) {
  if (value > 360.0)
    writeInteger(*this, missing.name, 360);
  else if (value < 0.0)
    writeInteger(*this, missing.name, 0);
  else
    missing.set(*this, value);
}
bool OrbRotation::isMissingPresent() const { return missing.isPresent(*this); }
void OrbRotation::removeMissing() { missing.remove(*this); }
