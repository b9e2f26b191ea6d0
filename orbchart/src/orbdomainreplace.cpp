// A domain modifier that puts its values in place.
#include "orbdomainreplace.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDomainReplace>() {
  return elementDescription<OrbDomainReplace, DerivedFrom<CTModifier>, Attributes>;
}

OrbDomainReplace::OrbDomainReplace(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainReplace::~OrbDomainReplace() = default;

const XMLCh* OrbDomainReplace::getId() const { return id.get(*this); }
