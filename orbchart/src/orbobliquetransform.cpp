// An oblique projection.
#include "orbobliquetransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double theta{OrbUni::_theta};
constexpr Double distance{OrbUni::_distance};
constexpr Double foreShortening{OrbUni::_foreShortening};
constexpr Double xscale{OrbUni::_xscale};
constexpr Double yscale{OrbUni::_yscale};
constexpr Double dx{OrbUni::_dx};
constexpr Double dy{OrbUni::_dy};

using Attributes = AttributeList<id, theta, distance, foreShortening, xscale, yscale, dx, dy>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbObliqueTransform>() {
  return elementDescription<OrbObliqueTransform, Attributes>;
}

OrbObliqueTransform::OrbObliqueTransform(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbObliqueTransform::~OrbObliqueTransform() = default;

const XMLCh* OrbObliqueTransform::getId() const { return id.get(*this); }
// The id is not registered.
void OrbObliqueTransform::setId(const XMLCh* value) { SetAttribute(id.name, value); }
void OrbObliqueTransform::removeId() { id.remove(*this); }

double OrbObliqueTransform::getTheta() const { return theta.get(*this); }
void OrbObliqueTransform::setTheta(double value) { theta.set(*this, value); }
void OrbObliqueTransform::removeTheta() { theta.remove(*this); }

double OrbObliqueTransform::getDistance() const { return distance.get(*this); }
void OrbObliqueTransform::setDistance(double value) { distance.set(*this, value); }
void OrbObliqueTransform::removeDistance() { distance.remove(*this); }

double OrbObliqueTransform::getForeShortening() const { return foreShortening.get(*this); }
void OrbObliqueTransform::setForeShortening(double value) { foreShortening.set(*this, value); }
void OrbObliqueTransform::removeForeShortening() { foreShortening.remove(*this); }

double OrbObliqueTransform::getXscale() const { return xscale.get(*this); }
void OrbObliqueTransform::setXscale(double value) { xscale.set(*this, value); }
void OrbObliqueTransform::removeXscale() { xscale.remove(*this); }

double OrbObliqueTransform::getYscale() const { return yscale.get(*this); }
void OrbObliqueTransform::setYscale(double value) { yscale.set(*this, value); }
void OrbObliqueTransform::removeYscale() { yscale.remove(*this); }

double OrbObliqueTransform::getDx() const { return dx.get(*this); }
void OrbObliqueTransform::setDx(double value) { dx.set(*this, value); }
void OrbObliqueTransform::removeDx() { dx.remove(*this); }

double OrbObliqueTransform::getDy() const { return dy.get(*this); }
void OrbObliqueTransform::setDy(double value) { dy.set(*this, value); }
void OrbObliqueTransform::removeDy() { dy.remove(*this); }
