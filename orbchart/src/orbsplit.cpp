// Splits a graphic element by a variable.
#include "orbsplit.h"

#include "attribute.h"
#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbSplit>() {
  return elementDescription<OrbSplit, DerivedFrom<CTAesthetic>>;
}

OrbSplit::OrbSplit(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbSplit::~OrbSplit() = default;
