// How far a graphic element is moved.
#include "orboffset.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Text low{OrbUni::_low};
constexpr Text high{OrbUni::_high};
constexpr Text missing{OrbOffset::_UTF_missing};

using Attributes = AttributeList<low, high, missing>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbOffset>() {
  return elementDescription<OrbOffset, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbOffset::OrbOffset(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbOffset::~OrbOffset() = default;

const XMLCh* OrbOffset::getLow() const { return low.get(*this); }
void OrbOffset::setLow(const XMLCh* value) { low.set(*this, value); }
void OrbOffset::removeLow() { low.remove(*this); }

const XMLCh* OrbOffset::getHigh() const { return high.get(*this); }
void OrbOffset::setHigh(const XMLCh* value) { high.set(*this, value); }
void OrbOffset::removeHigh() { high.remove(*this); }

const XMLCh* OrbOffset::getMissing() const { return missing.get(*this); }
void OrbOffset::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbOffset::isMissingPresent() const { return missing.isPresent(*this); }
void OrbOffset::removeMissing() { missing.remove(*this); }
