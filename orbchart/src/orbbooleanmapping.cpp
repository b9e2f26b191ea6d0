// Maps a value onto yes or no.
#include "orbbooleanmapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Boolean to{OrbUni::_to};

using Attributes = AttributeList<to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbBooleanMapping>() {
  return elementDescription<OrbBooleanMapping, DerivedFrom<CTAestheticMapping>, Attributes>;
}

OrbBooleanMapping::OrbBooleanMapping(xercesc::DOMElement* element) : CTAestheticMapping(element) { bindLeaf(*this); }
OrbBooleanMapping::OrbBooleanMapping(xercesc::DOMElement* element, bool to) : OrbBooleanMapping(element) { setTo(to); }
OrbBooleanMapping::~OrbBooleanMapping() = default;

bool OrbBooleanMapping::getTo() const { return to.get(*this); }
void OrbBooleanMapping::setTo(bool value) { to.set(*this, value); }
bool OrbBooleanMapping::isToPresent() const { return to.isPresent(*this); }
void OrbBooleanMapping::removeTo() { to.remove(*this); }
