// Maps a value onto a footnote.
#include "orbfootnotemapping.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text from{OrbUni::_from};
constexpr Text to{OrbUni::_to};
constexpr Text definesReference{OrbFootnoteMapping::_UTF_definesReference};

using Attributes = AttributeList<id, from, to, definesReference>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFootnoteMapping>() {
  return elementDescription<OrbFootnoteMapping, Attributes>;
}

OrbFootnoteMapping::OrbFootnoteMapping(xercesc::DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbFootnoteMapping::OrbFootnoteMapping(xercesc::DOMElement* element, const XMLCh* from, const XMLCh* to) :
    OrbFootnoteMapping(element) {
  setFrom(from);
  setTo(to);
}
OrbFootnoteMapping::~OrbFootnoteMapping() = default;

const XMLCh* OrbFootnoteMapping::getId() const { return id.get(*this); }
void OrbFootnoteMapping::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbFootnoteMapping::isIdPresent() const { return id.isPresent(*this); }
void OrbFootnoteMapping::removeId() { id.remove(*this); }

const XMLCh* OrbFootnoteMapping::getFrom() const { return from.get(*this); }
void OrbFootnoteMapping::setFrom(const XMLCh* value) { from.set(*this, value); }
bool OrbFootnoteMapping::isFromPresent() const { return from.isPresent(*this); }
void OrbFootnoteMapping::removeFrom() { from.remove(*this); }

const XMLCh* OrbFootnoteMapping::getTo() const { return to.get(*this); }
void OrbFootnoteMapping::setTo(const XMLCh* value) { to.set(*this, value); }
bool OrbFootnoteMapping::isToPresent() const { return to.isPresent(*this); }
void OrbFootnoteMapping::removeTo() { to.remove(*this); }

const XMLCh* OrbFootnoteMapping::getDefinesReference() const { return definesReference.get(*this); }
void OrbFootnoteMapping::setDefinesReference(const XMLCh* value) { definesReference.set(*this, value); }
bool OrbFootnoteMapping::isDefinesReferencePresent() const { return definesReference.isPresent(*this); }
void OrbFootnoteMapping::removeDefinesReference() { definesReference.remove(*this); }
