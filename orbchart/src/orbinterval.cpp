// Bars.
#include "orbinterval.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Boolean centerIn3D{OrbInterval::_UTF_centerIn3D};

using Attributes = AttributeList<centerIn3D>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbInterval>() {
  return elementDescription<OrbInterval, DerivedFrom<CTElementType>, Attributes>;
}

OrbInterval::OrbInterval(DOMElement* element) : CTElementType(element) { bind(*this); }
OrbInterval::OrbInterval(DOMElement* element, const XMLCh* id) : CTElementType(element, id) { bind(*this); }
OrbInterval::~OrbInterval() = default;

bool OrbInterval::getCenterIn3D() const { return centerIn3D.get(*this); }
void OrbInterval::setCenterIn3D(bool value) { centerIn3D.set(*this, value); }
void OrbInterval::removeCenterIn3D() { centerIn3D.remove(*this); }
