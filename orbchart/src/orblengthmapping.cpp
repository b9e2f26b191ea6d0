// Maps a value onto a length.
#include "orblengthmapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLengthMapping>() {
  return elementDescription<OrbLengthMapping, DerivedFrom<CTAestheticMapping>, Attributes>;
}

OrbLengthMapping::OrbLengthMapping(xercesc::DOMElement* element) : CTAestheticMapping(element) { bindLeaf(*this); }
OrbLengthMapping::OrbLengthMapping(xercesc::DOMElement* element, const XMLCh* to) : OrbLengthMapping(element) {
  setTo(to);
}
OrbLengthMapping::~OrbLengthMapping() = default;

const XMLCh* OrbLengthMapping::getTo() const { return to.get(*this); }
void OrbLengthMapping::setTo(const XMLCh* value) { to.set(*this, value); }
void OrbLengthMapping::removeTo() { to.remove(*this); }
