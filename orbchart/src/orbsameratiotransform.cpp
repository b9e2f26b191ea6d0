// The same ratio on all dimensions.
#include "orbsameratiotransform.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean center{OrbUni::_center};

using Attributes = AttributeList<id, center>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSameRatioTransform>() {
  return elementDescription<OrbSameRatioTransform, Attributes>;
}

OrbSameRatioTransform::OrbSameRatioTransform(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbSameRatioTransform::~OrbSameRatioTransform() = default;

const XMLCh* OrbSameRatioTransform::getId() const { return id.get(*this); }
void OrbSameRatioTransform::setId(const XMLCh* value) { id.set(*this, value); }
void OrbSameRatioTransform::removeId() { id.remove(*this); }

bool OrbSameRatioTransform::getCenter() const { return center.get(*this); }
void OrbSameRatioTransform::setCenter(bool value) { center.set(*this, value); }
void OrbSameRatioTransform::removeCenter() { center.remove(*this); }
