// The size of a graphic element.
#include "orbsize.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Keywords type{OrbUni::_type,
                        OrbSize::type_unset,
                        {
                            {OrbSize::type_all, OrbSize::_UTF_type_all},
                            {OrbSize::type_width, OrbUni::_width},
                            {OrbSize::type_height, OrbUni::_height},
                            {OrbSize::type_depth, OrbUni::_depth},
                            {OrbSize::type_aspect, OrbUni::_aspect},
                        }};
constexpr Text low{OrbUni::_low};
constexpr Text high{OrbUni::_high};
constexpr Text missing{OrbSize::_UTF_missing};
constexpr Text cycle{OrbUni::_cycle};

using Attributes = AttributeList<type, low, high, missing, cycle>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbSize>() {
  return elementDescription<OrbSize, DerivedFrom<CTAesthetic>, Attributes>;
}

OrbSize::OrbSize(xercesc::DOMElement* element) : CTAesthetic(element) { bind(*this); }
OrbSize::~OrbSize() = default;

OrbSize::ENUM_type OrbSize::getType() const { return type.get(*this); }
void OrbSize::setType(ENUM_type value) { type.set(*this, value); }
bool OrbSize::isTypePresent() const { return type.isPresent(*this); }
void OrbSize::removeType() { type.remove(*this); }

const XMLCh* OrbSize::getLow() const { return low.get(*this); }
void OrbSize::setLow(const XMLCh* value) { low.set(*this, value); }
void OrbSize::removeLow() { low.remove(*this); }

const XMLCh* OrbSize::getHigh() const { return high.get(*this); }
void OrbSize::setHigh(const XMLCh* value) { high.set(*this, value); }
void OrbSize::removeHigh() { high.remove(*this); }

const XMLCh* OrbSize::getMissing() const { return missing.get(*this); }
void OrbSize::setMissing(const XMLCh* value) { missing.set(*this, value); }
bool OrbSize::isMissingPresent() const { return missing.isPresent(*this); }
void OrbSize::removeMissing() { missing.remove(*this); }

bool OrbSize::isCyclePresent() const { return cycle.isPresent(*this); }
void OrbSize::removeCycle() { cycle.remove(*this); }
