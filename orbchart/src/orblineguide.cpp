// A line laid over a graph.
#include "orblineguide.h"

#include "attribute.h"
#include "loading.h"
#include "orbcoordinates.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Text x{OrbUni::_x};
constexpr Text y{OrbUni::_y};
constexpr Text z{OrbUni::_z};
constexpr Text x1{OrbUni::_x1};
constexpr Text x2{OrbUni::_x2};
// The C library has a function `y1`.
constexpr Text y1Attribute{OrbUni::_y1};
constexpr Text y2{OrbUni::_y2};
constexpr Boolean expandToFit{OrbLineGuide::_UTF_expandToFit};
constexpr Reference<OrbCoordinates> coordinates{OrbUni::_coordinates};
constexpr Text z1{OrbLineGuide::_UTF_z1};
constexpr Text z2{OrbLineGuide::_UTF_z2};

using Attributes = AttributeList<x, y, z, x1, x2, y1Attribute, y2, expandToFit, coordinates, z1, z2>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLineGuide>() {
  return elementDescription<OrbLineGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbLineGuide::OrbLineGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbLineGuide::~OrbLineGuide() = default;

const XMLCh* OrbLineGuide::getX() const { return x.get(*this); }
void OrbLineGuide::setX(const XMLCh* value) { x.set(*this, value); }
void OrbLineGuide::removeX() { x.remove(*this); }

const XMLCh* OrbLineGuide::getY() const { return y.get(*this); }
void OrbLineGuide::setY(const XMLCh* value) { y.set(*this, value); }
void OrbLineGuide::removeY() { y.remove(*this); }

const XMLCh* OrbLineGuide::getZ() const { return z.get(*this); }
void OrbLineGuide::setZ(const XMLCh* value) { z.set(*this, value); }
void OrbLineGuide::removeZ() { z.remove(*this); }

const XMLCh* OrbLineGuide::getX1() const { return x1.get(*this); }
void OrbLineGuide::setX1(const XMLCh* value) { x1.set(*this, value); }
void OrbLineGuide::removeX1() { x1.remove(*this); }

const XMLCh* OrbLineGuide::getX2() const { return x2.get(*this); }
void OrbLineGuide::setX2(const XMLCh* value) { x2.set(*this, value); }
void OrbLineGuide::removeX2() { x2.remove(*this); }

const XMLCh* OrbLineGuide::getY1() const { return y1Attribute.get(*this); }
void OrbLineGuide::setY1(const XMLCh* value) { y1Attribute.set(*this, value); }
void OrbLineGuide::removeY1() { y1Attribute.remove(*this); }

const XMLCh* OrbLineGuide::getY2() const { return y2.get(*this); }
void OrbLineGuide::setY2(const XMLCh* value) { y2.set(*this, value); }
void OrbLineGuide::removeY2() { y2.remove(*this); }

bool OrbLineGuide::getExpandToFit() const { return expandToFit.get(*this); }
void OrbLineGuide::setExpandToFit(bool value) { expandToFit.set(*this, value); }
bool OrbLineGuide::isExpandToFitPresent() const { return expandToFit.isPresent(*this); }
void OrbLineGuide::removeExpandToFit() { expandToFit.remove(*this); }

OrbCoordinates* OrbLineGuide::getCoordinates() const { return coordinates.get(*this); }
void OrbLineGuide::setCoordinates(const OrbCoordinates& target) { coordinates.set(*this, target); }
bool OrbLineGuide::isCoordinatesPresent() const { return coordinates.isPresent(*this); }
void OrbLineGuide::removeCoordinates() { coordinates.remove(*this); }

const XMLCh* OrbLineGuide::getZ1() const { return z1.get(*this); }
void OrbLineGuide::setZ1(const XMLCh* value) { z1.set(*this, value); }
bool OrbLineGuide::isZ1Present() const { return z1.isPresent(*this); }
void OrbLineGuide::removeZ1() { z1.remove(*this); }

const XMLCh* OrbLineGuide::getZ2() const { return z2.get(*this); }
void OrbLineGuide::setZ2(const XMLCh* value) { z2.set(*this, value); }
bool OrbLineGuide::isZ2Present() const { return z2.isPresent(*this); }
void OrbLineGuide::removeZ2() { z2.remove(*this); }
