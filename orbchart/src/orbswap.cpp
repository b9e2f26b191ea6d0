// The improvement step of a graph layout that swaps nodes.
#include "orbswap.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbSwap>() {
  return elementDescription<OrbSwap, DerivedFrom<CTImproveLayout>>;
}

OrbSwap::OrbSwap(xercesc::DOMElement* element) : CTImproveLayout(element) { bindLeaf(*this); }
OrbSwap::~OrbSwap() = default;
