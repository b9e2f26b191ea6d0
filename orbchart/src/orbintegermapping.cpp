// Maps a value onto a number.
#include "orbintegermapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};
constexpr Unsigned to{OrbUni::_to};

using Attributes = AttributeList<id, from, to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbIntegerMapping>() {
  return elementDescription<OrbIntegerMapping, Attributes>;
}

OrbIntegerMapping::OrbIntegerMapping(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbIntegerMapping::OrbIntegerMapping(xercesc::DOMElement* element, const XMLCh* from, unsigned int to) :
    OrbIntegerMapping(element) {
  setFrom(from);
  setTo(to);
}
OrbIntegerMapping::~OrbIntegerMapping() = default;

const XMLCh* OrbIntegerMapping::getId() const { return id.get(*this); }
void OrbIntegerMapping::setId(const XMLCh* value) { id.set(*this, value); }
void OrbIntegerMapping::removeId() { id.remove(*this); }

const XMLCh* OrbIntegerMapping::getFrom() const { return from.get(*this); }
void OrbIntegerMapping::setFrom(const XMLCh* value) { from.set(*this, value); }
void OrbIntegerMapping::removeFrom() { from.remove(*this); }

unsigned int OrbIntegerMapping::getTo() const { return to.get(*this); }
void OrbIntegerMapping::setTo(unsigned int value) { to.set(*this, value); }
void OrbIntegerMapping::removeTo() { to.remove(*this); }
