// The improvement step of a graph layout that polarizes it.
#include "orbpolarize.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbPolarize>() {
  return elementDescription<OrbPolarize, DerivedFrom<CTImproveLayout>>;
}

OrbPolarize::OrbPolarize(xercesc::DOMElement* element) : CTImproveLayout(element) { bindLeaf(*this); }
OrbPolarize::~OrbPolarize() = default;
