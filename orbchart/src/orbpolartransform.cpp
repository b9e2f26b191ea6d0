// Polar coordinates.
#include "orbpolartransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Double startAngle{OrbUni::_startAngle};
constexpr Double cycles{OrbUni::_cycles};
constexpr Boolean counterClockwise{OrbUni::_counterClockwise};

using Attributes = AttributeList<id, startAngle, cycles, counterClockwise>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPolarTransform>() {
  return elementDescription<OrbPolarTransform, Attributes>;
}

OrbPolarTransform::OrbPolarTransform(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbPolarTransform::~OrbPolarTransform() = default;

const XMLCh* OrbPolarTransform::getId() const { return id.get(*this); }
void OrbPolarTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbPolarTransform::removeId() { id.remove(*this); }

double OrbPolarTransform::getStartAngle() const { return startAngle.get(*this); }
void OrbPolarTransform::setStartAngle(double value) { startAngle.set(*this, value); }
void OrbPolarTransform::removeStartAngle() { startAngle.remove(*this); }

double OrbPolarTransform::getCycles() const { return cycles.get(*this); }
void OrbPolarTransform::setCycles(double value) { cycles.set(*this, value); }
void OrbPolarTransform::removeCycles() { cycles.remove(*this); }

bool OrbPolarTransform::getCounterClockwise() const { return counterClockwise.get(*this); }
void OrbPolarTransform::setCounterClockwise(bool value) { counterClockwise.set(*this, value); }
void OrbPolarTransform::removeCounterClockwise() { counterClockwise.remove(*this); }
