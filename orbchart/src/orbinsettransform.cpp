// An inset rectangle.
#include "orbinsettransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double xMin{OrbUni::_x_min};
constexpr Double yMin{OrbUni::_y_min};
constexpr Double zMin{OrbUni::_z_min};
constexpr Double xMax{OrbUni::_x_max};
constexpr Double yMax{OrbUni::_y_max};
constexpr Double zMax{OrbUni::_z_max};

using Attributes = AttributeList<id, xMin, yMin, zMin, xMax, yMax, zMax>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbInsetTransform>() {
  return elementDescription<OrbInsetTransform, Attributes>;
}

OrbInsetTransform::OrbInsetTransform(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbInsetTransform::~OrbInsetTransform() = default;

const XMLCh* OrbInsetTransform::getId() const { return id.get(*this); }
void OrbInsetTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbInsetTransform::removeId() { id.remove(*this); }

double OrbInsetTransform::getX_min() const { return xMin.get(*this); }
void OrbInsetTransform::setX_min(double value) { xMin.set(*this, value); }
void OrbInsetTransform::removeX_min() { xMin.remove(*this); }

double OrbInsetTransform::getY_min() const { return yMin.get(*this); }
void OrbInsetTransform::setY_min(double value) { yMin.set(*this, value); }
void OrbInsetTransform::removeY_min() { yMin.remove(*this); }

double OrbInsetTransform::getZ_min() const { return zMin.get(*this); }
void OrbInsetTransform::setZ_min(double value) { zMin.set(*this, value); }
void OrbInsetTransform::removeZ_min() { zMin.remove(*this); }

double OrbInsetTransform::getX_max() const { return xMax.get(*this); }
void OrbInsetTransform::setX_max(double value) { xMax.set(*this, value); }
void OrbInsetTransform::removeX_max() { xMax.remove(*this); }

double OrbInsetTransform::getY_max() const { return yMax.get(*this); }
void OrbInsetTransform::setY_max(double value) { yMax.set(*this, value); }
void OrbInsetTransform::removeY_max() { yMax.remove(*this); }

double OrbInsetTransform::getZ_max() const { return zMax.get(*this); }
void OrbInsetTransform::setZ_max(double value) { zMax.set(*this, value); }
void OrbInsetTransform::removeZ_max() { zMax.remove(*this); }
