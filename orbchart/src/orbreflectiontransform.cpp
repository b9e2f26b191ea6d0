// A reflection.
#include "orbreflectiontransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "spacedimension.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& dimension = dimensionOf<OrbReflectionTransform>;
constexpr Boolean alternating{OrbUni::_alternating};

using Attributes = AttributeList<id, dimension, alternating>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbReflectionTransform>() {
  return elementDescription<OrbReflectionTransform, Attributes>;
}

OrbReflectionTransform::OrbReflectionTransform(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbReflectionTransform::~OrbReflectionTransform() = default;

const XMLCh* OrbReflectionTransform::getId() const { return id.get(*this); }
void OrbReflectionTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbReflectionTransform::removeId() { id.remove(*this); }

OrbReflectionTransform::ENUM_dimension OrbReflectionTransform::getDimension() const { return dimension.get(*this); }
void OrbReflectionTransform::setDimension(ENUM_dimension value) { dimension.set(*this, value); }
void OrbReflectionTransform::removeDimension() { dimension.remove(*this); }

bool OrbReflectionTransform::getAlternating() const { return alternating.get(*this); }
void OrbReflectionTransform::setAlternating(bool value) { alternating.set(*this, value); }
void OrbReflectionTransform::removeAlternating() { alternating.remove(*this); }
