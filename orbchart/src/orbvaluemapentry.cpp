// One value of a derived variable in the place of another.
#include "orbvaluemapentry.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};
constexpr Text to{OrbUni::_to};

using Attributes = AttributeList<id, from, to>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbValueMapEntry>() {
  return elementDescription<OrbValueMapEntry, Attributes>;
}

OrbValueMapEntry::OrbValueMapEntry(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbValueMapEntry::~OrbValueMapEntry() = default;

const XMLCh* OrbValueMapEntry::getId() const { return id.get(*this); }
void OrbValueMapEntry::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbValueMapEntry::isIdPresent() const { return id.isPresent(*this); }
void OrbValueMapEntry::removeId() { id.remove(*this); }

const XMLCh* OrbValueMapEntry::getFrom() const { return from.get(*this); }
void OrbValueMapEntry::setFrom(const XMLCh* value) { from.set(*this, value); }
bool OrbValueMapEntry::isFromPresent() const { return from.isPresent(*this); }
void OrbValueMapEntry::removeFrom() { from.remove(*this); }

const XMLCh* OrbValueMapEntry::getTo() const { return to.get(*this); }
void OrbValueMapEntry::setTo(const XMLCh* value) { to.set(*this, value); }
bool OrbValueMapEntry::isToPresent() const { return to.isPresent(*this); }
void OrbValueMapEntry::removeTo() { to.remove(*this); }
