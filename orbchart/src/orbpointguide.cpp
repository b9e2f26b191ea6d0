// A point laid over a graph.
#include "orbpointguide.h"

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
constexpr Reference<OrbCoordinates> coordinates{OrbUni::_coordinates};

using Attributes = AttributeList<x, y, z, coordinates>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPointGuide>() {
  return elementDescription<OrbPointGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbPointGuide::OrbPointGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbPointGuide::~OrbPointGuide() = default;

const XMLCh* OrbPointGuide::getX() const { return x.get(*this); }
void OrbPointGuide::setX(const XMLCh* value) { x.set(*this, value); }
void OrbPointGuide::removeX() { x.remove(*this); }

const XMLCh* OrbPointGuide::getY() const { return y.get(*this); }
void OrbPointGuide::setY(const XMLCh* value) { y.set(*this, value); }
void OrbPointGuide::removeY() { y.remove(*this); }

const XMLCh* OrbPointGuide::getZ() const { return z.get(*this); }
void OrbPointGuide::setZ(const XMLCh* value) { z.set(*this, value); }
void OrbPointGuide::removeZ() { z.remove(*this); }

OrbCoordinates* OrbPointGuide::getCoordinates() const { return coordinates.get(*this); }
void OrbPointGuide::setCoordinates(const OrbCoordinates& target) { coordinates.set(*this, target); }
bool OrbPointGuide::isCoordinatesPresent() const { return coordinates.isPresent(*this); }
void OrbPointGuide::removeCoordinates() { coordinates.remove(*this); }
