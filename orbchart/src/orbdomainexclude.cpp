// A domain modifier that takes its values away.
#include "orbdomainexclude.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDomainExclude>() {
  return elementDescription<OrbDomainExclude, DerivedFrom<CTModifier>, Attributes>;
}

OrbDomainExclude::OrbDomainExclude(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainExclude::~OrbDomainExclude() = default;

const XMLCh* OrbDomainExclude::getId() const { return id.get(*this); }
