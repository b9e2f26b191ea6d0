// What the elements that hold a text with a style share.
#include "cttexttype.h"

#include "attribute.h"
#include "elementtext.h"
#include "orbstyle.h"
#include "orbuni.h"
#include "reference.h"
#include "textposition.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr auto& position = textPositionOf<CTTextType>;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Text definesReference{CTTextType::_UTF_definesReference};
constexpr Text usesReference{CTTextType::_UTF_usesReference};

using Attributes = AttributeList<id, position, style, definesReference, usesReference>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTTextType>() {
  return elementDescription<CTTextType, Attributes, BearsText>;
}

CTTextType::CTTextType(xercesc::DOMElement* element) : OrbBaseElement(element) {}
CTTextType::~CTTextType() = default;

const XMLCh* CTTextType::getId() const { return id.get(*this); }
void CTTextType::setId(const XMLCh* value) { id.set(*this, value); }
void CTTextType::removeId() { id.remove(*this); }

CTTextType::ENUM_position CTTextType::getPosition() const { return position.get(*this); }
void CTTextType::setPosition(ENUM_position value) { position.set(*this, value); }
bool CTTextType::isPositionPresent() const { return position.isPresent(*this); }
void CTTextType::removePosition() { position.remove(*this); }

OrbStyle* CTTextType::getStyle() const { return style.get(*this); }
void CTTextType::setStyle(const OrbStyle& target) { style.set(*this, target); }
bool CTTextType::isStylePresent() const { return style.isPresent(*this); }
void CTTextType::removeStyle() { style.remove(*this); }

const XMLCh* CTTextType::getDefinesReference() const { return definesReference.get(*this); }
void CTTextType::setDefinesReference(const XMLCh* value) { definesReference.set(*this, value); }
bool CTTextType::isDefinesReferencePresent() const { return definesReference.isPresent(*this); }
void CTTextType::removeDefinesReference() { definesReference.remove(*this); }

const XMLCh* CTTextType::getUsesReference() const { return usesReference.get(*this); }
void CTTextType::setUsesReference(const XMLCh* value) { usesReference.set(*this, value); }
bool CTTextType::isUsesReferencePresent() const { return usesReference.isPresent(*this); }
void CTTextType::removeUsesReference() { usesReference.remove(*this); }

ChartString CTTextType::getText() const { return readAllText(*this); }
void CTTextType::setText(const XMLCh* text) { writeText(*this, text); }
void CTTextType::removeText() { clearText(*this); }
