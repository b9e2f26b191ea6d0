// A domain modifier that adds its values.
#include "orbdomainunion.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDomainUnion>() {
  return elementDescription<OrbDomainUnion, DerivedFrom<CTModifier>, Attributes>;
}

OrbDomainUnion::OrbDomainUnion(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainUnion::~OrbDomainUnion() = default;

const XMLCh* OrbDomainUnion::getId() const { return id.get(*this); }
