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

constexpr Id id;
constexpr VariableReference variable{OrbUni::_variable};
constexpr Text value{OrbUni::_value};
constexpr Boolean visible{OrbUni::_visible};
constexpr Keywords method{OrbUni::_method,
                          OrbLayer::method_unset,
                          {
                              {OrbLayer::method_cross, OrbUni::_cross},
                              {OrbLayer::method_nest, OrbUni::_nest},
                              {OrbLayer::method_dot, OrbUni::_dot},
                          }};
constexpr Boolean titleVisible{OrbLayer::_UTF_titleVisible};

using Attributes = AttributeList<id, variable, value, visible, method, titleVisible>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbLayer>() {
  return elementDescription<OrbLayer, Attributes>;
}

OrbLayer::OrbLayer(DOMElement* element) : OrbBaseElement(element) { bindLeaf(*this); }
OrbLayer::OrbLayer(DOMElement* element, const CTVariableType& variable, const XMLCh* value) : OrbLayer(element) {
  setVariable(variable);
  setValue(value);
}
OrbLayer::~OrbLayer() = default;

const XMLCh* OrbLayer::getId() const { return id.get(*this); }
void OrbLayer::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbLayer::isIdPresent() const { return id.isPresent(*this); }
void OrbLayer::removeId() { id.remove(*this); }

CTVariableType* OrbLayer::getVariable() const { return variable.get(*this); }
void OrbLayer::setVariable(const CTVariableType& target) { variable.set(*this, target); }
bool OrbLayer::isVariablePresent() const { return variable.isPresent(*this); }
void OrbLayer::removeVariable() { variable.remove(*this); }

const XMLCh* OrbLayer::getValue() const { return value.get(*this); }
void OrbLayer::setValue(const XMLCh* newValue) { value.set(*this, newValue); }
bool OrbLayer::isValuePresent() const { return value.isPresent(*this); }
void OrbLayer::removeValue() { value.remove(*this); }

bool OrbLayer::getVisible() const { return visible.get(*this); }
void OrbLayer::setVisible(bool value) { visible.set(*this, value); }
bool OrbLayer::isVisiblePresent() const { return visible.isPresent(*this); }
void OrbLayer::removeVisible() { visible.remove(*this); }

OrbLayer::ENUM_method OrbLayer::getMethod() const { return method.get(*this); }
void OrbLayer::setMethod(ENUM_method value) { method.set(*this, value); }
bool OrbLayer::isMethodPresent() const { return method.isPresent(*this); }
void OrbLayer::removeMethod() { method.remove(*this); }

bool OrbLayer::getTitleVisible() const { return titleVisible.get(*this); }
void OrbLayer::setTitleVisible(bool value) { titleVisible.set(*this, value); }
bool OrbLayer::isTitleVisiblePresent() const { return titleVisible.isPresent(*this); }
void OrbLayer::removeTitleVisible() { titleVisible.remove(*this); }
