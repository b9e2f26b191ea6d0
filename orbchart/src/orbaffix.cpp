// The affix of a format.
#include "orbaffix.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"
#include "textposition.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Id id;
constexpr Text value{OrbUni::_value};
constexpr Boolean suffix{OrbUni::_suffix};
constexpr auto& position = textPositionOf<OrbAffix>;
constexpr Text definesReference{OrbAffix::_UTF_definesReference};

using Attributes = AttributeList<id, value, suffix, position, definesReference>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbAffix>() {
  return elementDescription<OrbAffix, Attributes>;
}

OrbAffix::OrbAffix(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbAffix::OrbAffix(DOMElement* element, const XMLCh* value) : OrbAffix(element) { setValue(value); }
OrbAffix::~OrbAffix() = default;

const XMLCh* OrbAffix::getId() const { return id.get(*this); }
void OrbAffix::setId(const XMLCh* newValue) { id.set(*this, newValue); }
bool OrbAffix::isIdPresent() const { return id.isPresent(*this); }
void OrbAffix::removeId() { id.remove(*this); }

const XMLCh* OrbAffix::getValue() const { return value.get(*this); }
void OrbAffix::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
bool OrbAffix::isValuePresent() const { return value.isPresent(*this); }
void OrbAffix::removeValue() { value.remove(*this); }

bool OrbAffix::getSuffix() const { return suffix.get(*this); }
void OrbAffix::setSuffix(bool newValue) { suffix.set(*this, newValue); }
bool OrbAffix::isSuffixPresent() const { return suffix.isPresent(*this); }
void OrbAffix::removeSuffix() { suffix.remove(*this); }

OrbAffix::ENUM_position OrbAffix::getPosition() const { return position.get(*this); }
void OrbAffix::setPosition(ENUM_position newValue) { position.set(*this, newValue); }
bool OrbAffix::isPositionPresent() const { return position.isPresent(*this); }
void OrbAffix::removePosition() { position.remove(*this); }

const XMLCh* OrbAffix::getDefinesReference() const { return definesReference.get(*this); }
void OrbAffix::setDefinesReference(const XMLCh* newValue) { definesReference.set(*this, newValue); }
bool OrbAffix::isDefinesReferencePresent() const { return definesReference.isPresent(*this); }
void OrbAffix::removeDefinesReference() { definesReference.remove(*this); }
