// Parallel coordinates.
#include "orbparallelcoordinatestransform.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbParallelCoordinatesTransform>() {
  return elementDescription<OrbParallelCoordinatesTransform, Attributes>;
}

OrbParallelCoordinatesTransform::OrbParallelCoordinatesTransform(xercesc::DOMElement* element) :
    OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbParallelCoordinatesTransform::~OrbParallelCoordinatesTransform() = default;

const XMLCh* OrbParallelCoordinatesTransform::getId() const { return id.get(*this); }
void OrbParallelCoordinatesTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbParallelCoordinatesTransform::removeId() { id.remove(*this); }
