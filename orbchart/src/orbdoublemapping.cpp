// Maps a value onto a number.
#include "orbdoublemapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Double to{OrbUni::_to};

using Attributes = AttributeList<to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDoubleMapping>() {
  return elementDescription<OrbDoubleMapping, DerivedFrom<CTAestheticMapping>, Attributes>;
}

OrbDoubleMapping::OrbDoubleMapping(xercesc::DOMElement* element) : CTAestheticMapping(element) { bindLeaf(*this); }
OrbDoubleMapping::OrbDoubleMapping(xercesc::DOMElement* element, double to) : OrbDoubleMapping(element) { setTo(to); }
OrbDoubleMapping::~OrbDoubleMapping() = default;

double OrbDoubleMapping::getTo() const { return to.get(*this); }
void OrbDoubleMapping::setTo(double value) { to.set(*this, value); }
void OrbDoubleMapping::removeTo() { to.remove(*this); }
