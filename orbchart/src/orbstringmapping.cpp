// Maps a value onto a text.
#include "orbstringmapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStringMapping>() {
  return elementDescription<OrbStringMapping, DerivedFrom<CTAestheticMapping>, Attributes>;
}

OrbStringMapping::OrbStringMapping(xercesc::DOMElement* element) : CTAestheticMapping(element) { bindLeaf(*this); }
OrbStringMapping::OrbStringMapping(xercesc::DOMElement* element, const XMLCh* to) : OrbStringMapping(element) {
  setTo(to);
}
OrbStringMapping::~OrbStringMapping() = default;

const XMLCh* OrbStringMapping::getTo() const { return to.get(*this); }
void OrbStringMapping::setTo(const XMLCh* value) { to.set(*this, value); }
bool OrbStringMapping::isToPresent() const { return to.isPresent(*this); }
void OrbStringMapping::removeTo() { to.remove(*this); }
