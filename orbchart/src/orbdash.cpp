// The dash pattern of the lines of a graphic element.
#include "orbdash.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text cycle{OrbUni::_cycle};
constexpr Text missing{OrbDash::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbDash>() {
  return elementDescription<OrbDash, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbDash::OrbDash(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbDash::~OrbDash() = default;

bool OrbDash::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbDash::removeCycle() { cycle.remove(*this); }

const XMLCh* OrbDash::getMissing() const { return missing.get(*this); }
void OrbDash::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbDash::isMissingPresent() const { return missing.isPresent(*this); }
void OrbDash::removeMissing() { missing.remove(*this); }
