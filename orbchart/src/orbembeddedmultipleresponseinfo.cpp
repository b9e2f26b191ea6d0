// A multiple response variable of an embedded table.
#include "orbembeddedmultipleresponseinfo.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text components{OrbEmbeddedMultipleResponseInfo::_UTF_components};
constexpr Text target{OrbUni::_target};
constexpr Boolean categoryComponents{OrbEmbeddedMultipleResponseInfo::_UTF_categoryComponents};

using Attributes = AttributeList<id, components, target, categoryComponents>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbEmbeddedMultipleResponseInfo>() {
  return elementDescription<OrbEmbeddedMultipleResponseInfo, Attributes>;
}

OrbEmbeddedMultipleResponseInfo::OrbEmbeddedMultipleResponseInfo(xercesc::DOMElement* element) :
    OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbEmbeddedMultipleResponseInfo::~OrbEmbeddedMultipleResponseInfo() = default;

const XMLCh* OrbEmbeddedMultipleResponseInfo::getId() const { return id.get(*this); }
void OrbEmbeddedMultipleResponseInfo::setId(const XMLCh* value) { id.set(*this, value); }
bool OrbEmbeddedMultipleResponseInfo::isIdPresent() const { return id.isPresent(*this); }
void OrbEmbeddedMultipleResponseInfo::removeId() { id.remove(*this); }

const XMLCh* OrbEmbeddedMultipleResponseInfo::getComponents() const { return components.get(*this); }
void OrbEmbeddedMultipleResponseInfo::setComponents(const XMLCh* value) { components.set(*this, value); }
bool OrbEmbeddedMultipleResponseInfo::isComponentsPresent() const { return components.isPresent(*this); }
void OrbEmbeddedMultipleResponseInfo::removeComponents() { components.remove(*this); }

const XMLCh* OrbEmbeddedMultipleResponseInfo::getTarget() const { return target.get(*this); }
void OrbEmbeddedMultipleResponseInfo::setTarget(const XMLCh* value) { target.set(*this, value); }
bool OrbEmbeddedMultipleResponseInfo::isTargetPresent() const { return target.isPresent(*this); }
void OrbEmbeddedMultipleResponseInfo::removeTarget() { target.remove(*this); }

bool OrbEmbeddedMultipleResponseInfo::getCategoryComponents() const { return categoryComponents.get(*this); }
void OrbEmbeddedMultipleResponseInfo::setCategoryComponents(bool value) { categoryComponents.set(*this, value); }
bool OrbEmbeddedMultipleResponseInfo::isCategoryComponentsPresent() const {
  return categoryComponents.isPresent(*this);
}
void OrbEmbeddedMultipleResponseInfo::removeCategoryComponents() { categoryComponents.remove(*this); }
