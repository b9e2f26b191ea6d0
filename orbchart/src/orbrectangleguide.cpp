// A rectangle laid over a graph.
#include "orbrectangleguide.h"

#include "attribute.h"
#include "loading.h"
#include "orbcoordinates.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Text x1{OrbUni::_x1};
constexpr Text x2{OrbUni::_x2};
// The C library has a function `y1`.
constexpr Text y1Attribute{OrbUni::_y1};
constexpr Text y2{OrbUni::_y2};
constexpr Reference<OrbCoordinates> coordinates{OrbUni::_coordinates};

using Attributes = AttributeList<x1, x2, y1Attribute, y2, coordinates>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRectangleGuide>() {
  return elementDescription<OrbRectangleGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbRectangleGuide::OrbRectangleGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbRectangleGuide::~OrbRectangleGuide() = default;

const XMLCh* OrbRectangleGuide::getX1() const { return x1.get(*this); }
void OrbRectangleGuide::setX1(const XMLCh* value) { x1.set(*this, value); }
bool OrbRectangleGuide::isX1Present() const { return x1.isPresent(*this); }
void OrbRectangleGuide::removeX1() { x1.remove(*this); }

const XMLCh* OrbRectangleGuide::getX2() const { return x2.get(*this); }
void OrbRectangleGuide::setX2(const XMLCh* value) { x2.set(*this, value); }
bool OrbRectangleGuide::isX2Present() const { return x2.isPresent(*this); }
void OrbRectangleGuide::removeX2() { x2.remove(*this); }

const XMLCh* OrbRectangleGuide::getY1() const { return y1Attribute.get(*this); }
void OrbRectangleGuide::setY1(const XMLCh* value) { y1Attribute.set(*this, value); }
bool OrbRectangleGuide::isY1Present() const { return y1Attribute.isPresent(*this); }
void OrbRectangleGuide::removeY1() { y1Attribute.remove(*this); }

const XMLCh* OrbRectangleGuide::getY2() const { return y2.get(*this); }
void OrbRectangleGuide::setY2(const XMLCh* value) { y2.set(*this, value); }
bool OrbRectangleGuide::isY2Present() const { return y2.isPresent(*this); }
void OrbRectangleGuide::removeY2() { y2.remove(*this); }

OrbCoordinates* OrbRectangleGuide::getCoordinates() const { return coordinates.get(*this); }
void OrbRectangleGuide::setCoordinates(const OrbCoordinates& target) { coordinates.set(*this, target); }
bool OrbRectangleGuide::isCoordinatesPresent() const { return coordinates.isPresent(*this); }
void OrbRectangleGuide::removeCoordinates() { coordinates.remove(*this); }
