// A control to sort the facets of a graph.
#include "orbfacetsortcontroller.h"

#include "loading.h"
#include "orbgraph.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbGraph> target{OrbUni::_target};

using Attributes = AttributeList<target>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFacetSortController>() {
  return elementDescription<OrbFacetSortController, DerivedFrom<CTInteraction>, Attributes>;
}

OrbFacetSortController::OrbFacetSortController(xercesc::DOMElement* element) : CTInteraction(element) {
  bindLeaf(*this);
}
OrbFacetSortController::~OrbFacetSortController() = default;

OrbGraph* OrbFacetSortController::getTarget() const { return target.get(*this); }
void OrbFacetSortController::setTarget(const OrbGraph& newTarget) { target.set(*this, newTarget); }
bool OrbFacetSortController::isTargetPresent() const { return target.isPresent(*this); }
void OrbFacetSortController::removeTarget() { target.remove(*this); }
