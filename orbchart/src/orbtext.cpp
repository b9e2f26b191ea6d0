// A literal text.
#include "orbtext.h"

#include "loading.h"

using namespace orbchart;

template <> const ElementDescription& orbchart::descriptionOf<OrbText>() {
  return elementDescription<OrbText, DerivedFrom<CTTextType>>;
}

OrbText::OrbText(xercesc::DOMElement* element) : CTTextType(element) { bindLeaf(*this); }
OrbText::~OrbText() = default;
