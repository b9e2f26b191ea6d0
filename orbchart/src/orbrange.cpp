// A range of values.
#include "orbrange.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text min{OrbUni::_min};
constexpr Text max{OrbUni::_max};
constexpr Boolean exact{OrbUni::_exact};

using Attributes = AttributeList<id, min, max, exact>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbRange>() {
  return elementDescription<OrbRange, Attributes>;
}

OrbRange::OrbRange(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbRange::~OrbRange() = default;

const XMLCh* OrbRange::getId() const { return id.get(*this); }
void OrbRange::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbRange::isIdPresent() const { return id.isPresent(*this); }
void OrbRange::removeId() { id.remove(*this); }

const XMLCh* OrbRange::getMin() const { return min.get(*this); }
void OrbRange::setMin(const XMLCh* value) { min.set(*this, value); }
void OrbRange::removeMin() { min.remove(*this); }

const XMLCh* OrbRange::getMax() const { return max.get(*this); }
void OrbRange::setMax(const XMLCh* value) { max.set(*this, value); }
void OrbRange::removeMax() { max.remove(*this); }

bool OrbRange::getExact() const { return exact.get(*this); }
void OrbRange::setExact(bool value) { exact.set(*this, value); }
void OrbRange::removeExact() { exact.remove(*this); }
