// The curve of a function.
#include "orbfunctionguide.h"

#include "attribute.h"
#include "loading.h"
#include "orbcoordinates.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Unsigned segments{OrbUni::_segments};
constexpr Text value{OrbUni::_value};
constexpr Boolean expandToFit{OrbFunctionGuide::_UTF_expandToFit};
constexpr Reference<OrbCoordinates> coordinates{OrbUni::_coordinates};

using Attributes = AttributeList<segments, value, expandToFit, coordinates>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFunctionGuide>() {
  return elementDescription<OrbFunctionGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbFunctionGuide::OrbFunctionGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbFunctionGuide::~OrbFunctionGuide() = default;

unsigned int OrbFunctionGuide::getSegments() const { return segments.get(*this); }
void OrbFunctionGuide::setSegments(unsigned int value) { segments.set(*this, value); }
bool OrbFunctionGuide::isSegmentsPresent() const { return segments.isPresent(*this); }
void OrbFunctionGuide::removeSegments() { segments.remove(*this); }

const XMLCh* OrbFunctionGuide::getValue() const { return value.get(*this); }
void OrbFunctionGuide::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
bool OrbFunctionGuide::isValuePresent() const { return value.isPresent(*this); }
void OrbFunctionGuide::removeValue() { value.remove(*this); }

bool OrbFunctionGuide::getExpandToFit() const { return expandToFit.get(*this); }
void OrbFunctionGuide::setExpandToFit(bool value) { expandToFit.set(*this, value); }
bool OrbFunctionGuide::isExpandToFitPresent() const { return expandToFit.isPresent(*this); }
void OrbFunctionGuide::removeExpandToFit() { expandToFit.remove(*this); }

OrbCoordinates* OrbFunctionGuide::getCoordinates() const { return coordinates.get(*this); }
void OrbFunctionGuide::setCoordinates(const OrbCoordinates& target) { coordinates.set(*this, target); }
bool OrbFunctionGuide::isCoordinatesPresent() const { return coordinates.isPresent(*this); }
void OrbFunctionGuide::removeCoordinates() { coordinates.remove(*this); }
