// A rotation of the space.
#include "orbrotationtransform.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords dimension{OrbUni::_dimension,
                             OrbRotationTransform::dimension_unset,
                             {
                                 {OrbRotationTransform::dimension_x, OrbUni::_x},
                                 {OrbRotationTransform::dimension_y, OrbUni::_y},
                                 {OrbRotationTransform::dimension_z, OrbUni::_z},
                                 {OrbRotationTransform::dimension_theta, OrbUni::_theta},
                                 {OrbRotationTransform::dimension_r, OrbUni::_r},
                                 {OrbRotationTransform::dimension_phi, OrbUni::_phi},
                             }};
constexpr Double angle{OrbUni::_angle};

using Attributes = AttributeList<id, dimension, angle>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRotationTransform>() {
  return elementDescription<OrbRotationTransform, Attributes>;
}

OrbRotationTransform::OrbRotationTransform(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRotationTransform::~OrbRotationTransform() = default;

const XMLCh* OrbRotationTransform::getId() const { return id.get(*this); }
void OrbRotationTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbRotationTransform::removeId() { id.remove(*this); }

OrbRotationTransform::ENUM_dimension OrbRotationTransform::getDimension() const { return dimension.get(*this); }
void OrbRotationTransform::setDimension(ENUM_dimension value) { dimension.set(*this, value); }
void OrbRotationTransform::removeDimension() { dimension.remove(*this); }

double OrbRotationTransform::getAngle() const { return angle.get(*this); }
void OrbRotationTransform::setAngle(double value) { angle.set(*this, value); }
void OrbRotationTransform::removeAngle() { angle.remove(*this); }
