// A view of the rectangular space.
#include "orbrectangulartransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double theta{OrbUni::_theta};
constexpr Double phi{OrbUni::_phi};
constexpr Double zeta{OrbUni::_zeta};
constexpr Double distance{OrbUni::_distance};
constexpr Double projectionDistance{OrbUni::_projectionDistance};
constexpr Double xscale{OrbUni::_xscale};
constexpr Double yscale{OrbUni::_yscale};
constexpr Double zscale{OrbUni::_zscale};
constexpr Double dx{OrbUni::_dx};
constexpr Double dy{OrbUni::_dy};

using Attributes = AttributeList<id, theta, phi, zeta, distance, projectionDistance, xscale, yscale, zscale, dx, dy>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRectangularTransform>() {
  return elementDescription<OrbRectangularTransform, Attributes>;
}

OrbRectangularTransform::OrbRectangularTransform(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbRectangularTransform::~OrbRectangularTransform() = default;

const XMLCh* OrbRectangularTransform::getId() const { return id.get(*this); }
void OrbRectangularTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbRectangularTransform::removeId() { id.remove(*this); }

double OrbRectangularTransform::getTheta() const { return theta.get(*this); }
void OrbRectangularTransform::setTheta(double value) { theta.set(*this, value); }
void OrbRectangularTransform::removeTheta() { theta.remove(*this); }

double OrbRectangularTransform::getPhi() const { return phi.get(*this); }
void OrbRectangularTransform::setPhi(double value) { phi.set(*this, value); }
void OrbRectangularTransform::removePhi() { phi.remove(*this); }

double OrbRectangularTransform::getZeta() const { return zeta.get(*this); }
void OrbRectangularTransform::setZeta(double value) { zeta.set(*this, value); }
void OrbRectangularTransform::removeZeta() { zeta.remove(*this); }

double OrbRectangularTransform::getDistance() const { return distance.get(*this); }
void OrbRectangularTransform::setDistance(double value) { distance.set(*this, value); }
void OrbRectangularTransform::removeDistance() { distance.remove(*this); }

double OrbRectangularTransform::getProjectionDistance() const { return projectionDistance.get(*this); }
void OrbRectangularTransform::setProjectionDistance(double value) { projectionDistance.set(*this, value); }
void OrbRectangularTransform::removeProjectionDistance() { projectionDistance.remove(*this); }

double OrbRectangularTransform::getXscale() const { return xscale.get(*this); }
void OrbRectangularTransform::setXscale(double value) { xscale.set(*this, value); }
void OrbRectangularTransform::removeXscale() { xscale.remove(*this); }

double OrbRectangularTransform::getYscale() const { return yscale.get(*this); }
void OrbRectangularTransform::setYscale(double value) { yscale.set(*this, value); }
void OrbRectangularTransform::removeYscale() { yscale.remove(*this); }

double OrbRectangularTransform::getZscale() const { return zscale.get(*this); }
void OrbRectangularTransform::setZscale(double value) { zscale.set(*this, value); }
void OrbRectangularTransform::removeZscale() { zscale.remove(*this); }

double OrbRectangularTransform::getDx() const { return dx.get(*this); }
void OrbRectangularTransform::setDx(double value) { dx.set(*this, value); }
void OrbRectangularTransform::removeDx() { dx.remove(*this); }

double OrbRectangularTransform::getDy() const { return dy.get(*this); }
void OrbRectangularTransform::setDy(double value) { dy.set(*this, value); }
void OrbRectangularTransform::removeDy() { dy.remove(*this); }
