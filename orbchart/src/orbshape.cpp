// The symbol of a graphic element.
#include "orbshape.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text cycle{OrbUni::_cycle};
constexpr Text missing{OrbShape::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbShape>() {
  return elementDescription<OrbShape, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbShape::OrbShape(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbShape::~OrbShape() = default;

bool OrbShape::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbShape::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbShape::getMissing() const { return missing.get(*this); }
void OrbShape::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbShape::isMissingPresent() const { return missing.isPresent(*this); }
void OrbShape::removeMissing() { missing.remove(*this); }
