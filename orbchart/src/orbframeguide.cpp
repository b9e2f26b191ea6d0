// A frame around a graph.
#include "orbframeguide.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Boolean complete{OrbUni::_complete};

using Attributes = AttributeList<complete>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFrameGuide>() {
  return elementDescription<OrbFrameGuide, DerivedFrom<CTGuideType>, Attributes>;
}

OrbFrameGuide::OrbFrameGuide(xercesc::DOMElement* element) : CTGuideType(element) { bind(*this); }
OrbFrameGuide::~OrbFrameGuide() = default;

bool OrbFrameGuide::getComplete() const { return complete.get(*this); }
void OrbFrameGuide::setComplete(bool value) { complete.set(*this, value); }
void OrbFrameGuide::removeComplete() { complete.remove(*this); }
