// Maps a value onto a symbol.
#include "orbsymbolmapping.h"

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

template <> const ElementDescription& orbchart::descriptionOf<OrbSymbolMapping>() {
  return elementDescription<OrbSymbolMapping, Attributes>;
}

OrbSymbolMapping::OrbSymbolMapping(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbSymbolMapping::OrbSymbolMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to) :
    OrbSymbolMapping(element) {
  setFrom(from);
  setTo(to);
}
OrbSymbolMapping::~OrbSymbolMapping() = default;

const XMLCh* OrbSymbolMapping::getId() const { return id.get(*this); }
void OrbSymbolMapping::setId(const XMLCh* value) { id.set(*this, value); }
void OrbSymbolMapping::removeId() { id.remove(*this); }

const XMLCh* OrbSymbolMapping::getFrom() const { return from.get(*this); }
void OrbSymbolMapping::setFrom(const XMLCh* value) { from.set(*this, value); }
void OrbSymbolMapping::removeFrom() { from.remove(*this); }

const XMLCh* OrbSymbolMapping::getTo() const { return to.get(*this); }
void OrbSymbolMapping::setTo(const XMLCh* value) { to.set(*this, value); }
void OrbSymbolMapping::removeTo() { to.remove(*this); }
