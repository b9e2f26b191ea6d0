// A domain modifier that keeps what is among its values.
#include "orbdomainintersect.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;

using Attributes = AttributeList<id>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDomainIntersect>() {
  return elementDescription<OrbDomainIntersect, DerivedFrom<CTModifier>, Attributes>;
}

OrbDomainIntersect::OrbDomainIntersect(xercesc::DOMElement* element) : CTModifier(element) { bind(*this); }
OrbDomainIntersect::~OrbDomainIntersect() = default;

const XMLCh* OrbDomainIntersect::getId() const { return id.get(*this); }
