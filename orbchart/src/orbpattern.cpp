// The fill pattern of a graphic element.
#include "orbpattern.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text cycle{OrbUni::_cycle};
constexpr Unsigned missing{OrbPattern::_UTF_missing};

using Attributes = AttributeList<cycle, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbPattern>() {
  return elementDescription<OrbPattern, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbPattern::OrbPattern(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbPattern::~OrbPattern() = default;

bool OrbPattern::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbPattern::removeCycle() { cycle.remove(*this); }

unsigned int OrbPattern::getMissing() const { return missing.get(*this); }
void OrbPattern::setMissing(unsigned int value) { missing.set(*this, value); }
bool OrbPattern::isMissingPresent() const { return missing.isPresent(*this); }
void OrbPattern::removeMissing() { missing.remove(*this); }
