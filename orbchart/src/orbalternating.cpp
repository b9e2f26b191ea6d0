// The selection of alternating cells.
#include "orbalternating.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Boolean odd{OrbAlternating::_UTF_odd};

using Attributes = AttributeList<id, odd>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAlternating>() {
  return elementDescription<OrbAlternating, Attributes>;
}

OrbAlternating::OrbAlternating(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAlternating::~OrbAlternating() = default;

const XMLCh* OrbAlternating::getId() const { return id.get(*this); }
void OrbAlternating::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbAlternating::isIdPresent() const { return id.isPresent(*this); }
void OrbAlternating::removeId() { id.remove(*this); }

bool OrbAlternating::getOdd() const { return odd.get(*this); }
void OrbAlternating::setOdd(bool value) { odd.set(*this, value); }
bool OrbAlternating::isOddPresent() const { return odd.isPresent(*this); }
void OrbAlternating::removeOdd() { odd.remove(*this); }
