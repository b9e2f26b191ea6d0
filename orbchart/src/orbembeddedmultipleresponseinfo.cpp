// A multiple response variable of an embedded table.
#include "orbembeddedmultipleresponseinfo.h"

#include "attribute.h"
#include "loading.h"
#include "orbuni.h"

using namespace orbchart;

OrbEmbeddedMultipleResponseInfo::OrbEmbeddedMultipleResponseInfo(xercesc::DOMElement* element) :
    OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbEmbeddedMultipleResponseInfo::~OrbEmbeddedMultipleResponseInfo() = default;

const XMLCh* OrbEmbeddedMultipleResponseInfo::getId() const { return GetAttribute(OrbUni::_id); }
void OrbEmbeddedMultipleResponseInfo::setId(const XMLCh* id) { writeId(*this, id); }
bool OrbEmbeddedMultipleResponseInfo::isIdPresent() const { return isPresent(*this, OrbUni::_id); }
void OrbEmbeddedMultipleResponseInfo::removeId() { removeAttribute(*this, OrbUni::_id); }

const XMLCh* OrbEmbeddedMultipleResponseInfo::getComponents() const { return GetAttribute(_UTF_components); }
void OrbEmbeddedMultipleResponseInfo::setComponents(const XMLCh* components) {
  SetAttribute(_UTF_components, components);
}
bool OrbEmbeddedMultipleResponseInfo::isComponentsPresent() const { return isPresent(*this, _UTF_components); }
void OrbEmbeddedMultipleResponseInfo::removeComponents() { removeAttribute(*this, _UTF_components); }

const XMLCh* OrbEmbeddedMultipleResponseInfo::getTarget() const { return GetAttribute(OrbUni::_target); }
void OrbEmbeddedMultipleResponseInfo::setTarget(const XMLCh* target) { SetAttribute(OrbUni::_target, target); }
bool OrbEmbeddedMultipleResponseInfo::isTargetPresent() const { return isPresent(*this, OrbUni::_target); }
void OrbEmbeddedMultipleResponseInfo::removeTarget() { removeAttribute(*this, OrbUni::_target); }

bool OrbEmbeddedMultipleResponseInfo::getCategoryComponents() const {
  return readBoolean(*this, _UTF_categoryComponents);
}
void OrbEmbeddedMultipleResponseInfo::setCategoryComponents(bool categoryComponents) {
  writeBoolean(*this, _UTF_categoryComponents, categoryComponents);
}
bool OrbEmbeddedMultipleResponseInfo::isCategoryComponentsPresent() const {
  return isPresent(*this, _UTF_categoryComponents);
}
void OrbEmbeddedMultipleResponseInfo::removeCategoryComponents() { removeAttribute(*this, _UTF_categoryComponents); }
