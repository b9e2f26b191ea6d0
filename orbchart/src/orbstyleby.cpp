// The style of a graphic element.
#include "orbstyleby.h"

#include "attribute.h"
#include "loading.h"
#include "orbstylecycle.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Reference<OrbStyleCycle> styleCycle{OrbUni::_styleCycle};
constexpr Text affects{OrbUni::_affects};
constexpr Reference<OrbStyleCycle> missing{OrbStyleBy::_UTF_missing};

using Attributes = AttributeList<styleCycle, affects, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbStyleBy>() {
  return elementDescription<OrbStyleBy, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbStyleBy::OrbStyleBy(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbStyleBy::~OrbStyleBy() = default;

OrbStyleCycle* OrbStyleBy::getStyleCycle() const { return styleCycle.get(*this); }
void OrbStyleBy::setStyleCycle(const OrbStyleCycle& target) { styleCycle.set(*this, target); }
void OrbStyleBy::removeStyleCycle() { styleCycle.remove(*this); }

const XMLCh* OrbStyleBy::getAffects() const { return affects.get(*this); }
void OrbStyleBy::setAffects(const XMLCh* value) { affects.set(*this, value); }
void OrbStyleBy::removeAffects() { affects.remove(*this); }

OrbStyleCycle* OrbStyleBy::getMissing() const { return missing.get(*this); }
void OrbStyleBy::setMissing(const OrbStyleCycle& target) { missing.set(*this, target); }
bool OrbStyleBy::isMissingPresent() const { return missing.isPresent(*this); }
void OrbStyleBy::removeMissing() { missing.remove(*this); }
