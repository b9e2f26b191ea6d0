// Maps a value onto a colour.
#include "orbcolormapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbColorMapping>() {
  return elementDescription<OrbColorMapping, DerivedFrom<CTAestheticMapping>, Attributes>;
}

OrbColorMapping::OrbColorMapping(xercesc::DOMElement* element) : CTAestheticMapping(element) { bindLeaf(*this); }
OrbColorMapping::OrbColorMapping(xercesc::DOMElement* element, const XMLCh* to) : OrbColorMapping(element) {
  setTo(to);
}
OrbColorMapping::~OrbColorMapping() = default;

const XMLCh* OrbColorMapping::getTo() const { return to.get(*this); }
void OrbColorMapping::setTo(const XMLCh* value) { to.set(*this, value); }
void OrbColorMapping::removeTo() { to.remove(*this); }
