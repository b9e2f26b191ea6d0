// One layer of a faceting.
#include "orblayer.h"

#include "attribute.h"
#include "keyword.h"
#include "loading.h"
#include "orbuni.h"
#include "variablereference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<OrbLayer::ENUM_method> methods[] = {
    {OrbLayer::method_cross, OrbUni::_cross},
    {OrbLayer::method_nest, OrbUni::_nest},
    {OrbLayer::method_dot, OrbUni::_dot},
};

} // namespace

OrbLayer::OrbLayer(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLayer::OrbLayer(DOMElement* element, const CTVariableType& variable, const XMLCh* value) : OrbLayer(element) {
  setVariable(variable);
  setValue(value);
}
OrbLayer::~OrbLayer() = default;

const XMLCh* OrbLayer::getId() const { return GetAttribute(OrbUni::_id); }
void OrbLayer::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbLayer::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbLayer::removeId() { removeAttribute(*this, OrbUni::_id); }

CTVariableType* OrbLayer::getVariable() const { return readVariable(*this, OrbUni::_variable); }
void OrbLayer::setVariable(const CTVariableType& variable) { writeReference(*this, OrbUni::_variable, variable); }
bool OrbLayer::isVariablePresent() const { return isPresent(*this, OrbUni::_variable); }
void OrbLayer::removeVariable() { removeAttribute(*this, OrbUni::_variable); }

const XMLCh* OrbLayer::getValue() const { return GetAttribute(OrbUni::_value); }
void OrbLayer::setValue(const XMLCh* value) { SetAttribute(OrbUni::_value, value); }
bool OrbLayer::isValuePresent() const { return isPresent(*this, OrbUni::_value); }
void OrbLayer::removeValue() { removeAttribute(*this, OrbUni::_value); }

bool OrbLayer::getVisible() const { return readBoolean(*this, OrbUni::_visible); }
void OrbLayer::setVisible(bool visible) { writeBoolean(*this, OrbUni::_visible, visible); }
bool OrbLayer::isVisiblePresent() const { return isPresent(*this, OrbUni::_visible); }
void OrbLayer::removeVisible() { removeAttribute(*this, OrbUni::_visible); }

OrbLayer::ENUM_method OrbLayer::getMethod() const { return readKeyword(*this, OrbUni::_method, methods, method_unset); }
void OrbLayer::setMethod(ENUM_method method) { writeKeyword(*this, OrbUni::_method, methods, method); }
bool OrbLayer::isMethodPresent() const { return isPresent(*this, OrbUni::_method); }
void OrbLayer::removeMethod() { removeAttribute(*this, OrbUni::_method); }

bool OrbLayer::getTitleVisible() const { return readBoolean(*this, _UTF_titleVisible); }
void OrbLayer::setTitleVisible(bool titleVisible) { writeBoolean(*this, _UTF_titleVisible, titleVisible); }
bool OrbLayer::isTitleVisiblePresent() const { return isPresent(*this, _UTF_titleVisible); }
void OrbLayer::removeTitleVisible() { removeAttribute(*this, _UTF_titleVisible); }
