// A magnifying lens.
#include "orbfisheyetransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double magnification{OrbUni::_magnification};
constexpr Double radius{OrbUni::_radius};
constexpr Double x{OrbUni::_x};
constexpr Double y{OrbUni::_y};
constexpr Boolean affectsX{OrbFishEyeTransform::_UTF_affectsX};
constexpr Boolean affectsY{OrbFishEyeTransform::_UTF_affectsY};

using Attributes = AttributeList<id, magnification, radius, x, y, affectsX, affectsY>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFishEyeTransform>() {
  return elementDescription<OrbFishEyeTransform, Attributes>;
}

OrbFishEyeTransform::OrbFishEyeTransform(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbFishEyeTransform::~OrbFishEyeTransform() = default;

const XMLCh* OrbFishEyeTransform::getId() const { return id.get(*this); }
void OrbFishEyeTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFishEyeTransform::removeId() { id.remove(*this); }

double OrbFishEyeTransform::getMagnification() const { return magnification.get(*this); }
void OrbFishEyeTransform::setMagnification(double value) { magnification.set(*this, value); }
void OrbFishEyeTransform::removeMagnification() { magnification.remove(*this); }

double OrbFishEyeTransform::getRadius() const { return radius.get(*this); }
void OrbFishEyeTransform::setRadius(double value) { radius.set(*this, value); }
void OrbFishEyeTransform::removeRadius() { radius.remove(*this); }

double OrbFishEyeTransform::getX() const { return x.get(*this); }
void OrbFishEyeTransform::setX(double value) { x.set(*this, value); }
void OrbFishEyeTransform::removeX() { x.remove(*this); }

double OrbFishEyeTransform::getY() const { return y.get(*this); }
void OrbFishEyeTransform::setY(double value) { y.set(*this, value); }
void OrbFishEyeTransform::removeY() { y.remove(*this); }

bool OrbFishEyeTransform::getAffectsX() const { return affectsX.get(*this); }
void OrbFishEyeTransform::setAffectsX(bool value) { affectsX.set(*this, value); }
bool OrbFishEyeTransform::isAffectsXPresent() const { return affectsX.isPresent(*this); }
void OrbFishEyeTransform::removeAffectsX() { affectsX.remove(*this); }

bool OrbFishEyeTransform::getAffectsY() const { return affectsY.get(*this); }
void OrbFishEyeTransform::setAffectsY(bool value) { affectsY.set(*this, value); }
bool OrbFishEyeTransform::isAffectsYPresent() const { return affectsY.isPresent(*this); }
void OrbFishEyeTransform::removeAffectsY() { affectsY.remove(*this); }
