// A layout of a tree.
#include "orbtreelayoutstatistic.h"

#include "ctvariabletype.h"
#include "keyword.h"
#include "loading.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Keywords method{OrbUni::_method,
                          AbsentReadsAs(OrbTreeLayoutStatistic::method_treemap),
                          {
                              {OrbTreeLayoutStatistic::method_treemap, OrbUni::_treemap},
                              {OrbTreeLayoutStatistic::method_simple, OrbUni::_simple},
                          }};
// Their getters look under keys that no wrapper registers.
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> itemVariable{OrbUni::_itemVariable};
constexpr Taking<CTVariableType, ReferenceTo<CTVariableType>> parent{OrbUni::_parent};
constexpr Taking<CTVariableType, Reference<OrbSourceVariable>> sizeVariable{OrbUni::_sizeVariable};
constexpr Boolean addChildSizes{OrbUni::_addChildSizes};
constexpr Text spacing{OrbUni::_spacing};
constexpr Text padding{OrbUni::_padding};

using Attributes = AttributeList<id, method, itemVariable, parent, sizeVariable, addChildSizes, spacing, padding>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbTreeLayoutStatistic>() {
  return elementDescription<OrbTreeLayoutStatistic, Attributes>;
}

OrbTreeLayoutStatistic::OrbTreeLayoutStatistic(xercesc::DOMElement* element) : OrbBaseElement(element) {
  bindLeaf(*this);
}
OrbTreeLayoutStatistic::OrbTreeLayoutStatistic(xercesc::DOMElement* element, const CTVariableType& itemVariable,
                                               const CTVariableType& parent) :
    OrbBaseElement(element) {
  requireElement(*this);
  setItemVariable(itemVariable);
  setParent(parent);
  bindLeaf(*this);
}
OrbTreeLayoutStatistic::~OrbTreeLayoutStatistic() = default;

const XMLCh* OrbTreeLayoutStatistic::getId() const { return id.get(*this); }
void OrbTreeLayoutStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbTreeLayoutStatistic::removeId() { id.remove(*this); }

OrbTreeLayoutStatistic::ENUM_method OrbTreeLayoutStatistic::getMethod() const { return method.get(*this); }
void OrbTreeLayoutStatistic::setMethod(ENUM_method value) { method.set(*this, value); }
void OrbTreeLayoutStatistic::removeMethod() { method.remove(*this); }

CTVariableType* OrbTreeLayoutStatistic::getItemVariable() const {
  itemVariable.requireTarget(*this, "ItemVariable");
  return itemVariable.get(*this);
}
void OrbTreeLayoutStatistic::setItemVariable(const CTVariableType& target) { itemVariable.set(*this, target); }
void OrbTreeLayoutStatistic::removeItemVariable() { itemVariable.remove(*this); }

CTVariableType* OrbTreeLayoutStatistic::getParent() const {
  parent.requireTarget(*this, "Parent");
  return parent.get(*this);
}
void OrbTreeLayoutStatistic::setParent(const CTVariableType& target) { parent.set(*this, target); }
void OrbTreeLayoutStatistic::removeParent() { parent.remove(*this); }

OrbSourceVariable* OrbTreeLayoutStatistic::getSizeVariable() const { return sizeVariable.get(*this); }
void OrbTreeLayoutStatistic::setSizeVariable(const CTVariableType& target) { sizeVariable.set(*this, target); }
void OrbTreeLayoutStatistic::removeSizeVariable() { sizeVariable.remove(*this); }

bool OrbTreeLayoutStatistic::getAddChildSizes() const { return addChildSizes.get(*this); }
void OrbTreeLayoutStatistic::setAddChildSizes(bool value) { addChildSizes.set(*this, value); }
void OrbTreeLayoutStatistic::removeAddChildSizes() { addChildSizes.remove(*this); }

const XMLCh* OrbTreeLayoutStatistic::getSpacing() const { return spacing.get(*this); }
void OrbTreeLayoutStatistic::setSpacing(const XMLCh* value) { spacing.set(*this, value); }
void OrbTreeLayoutStatistic::setSpacing(double value) { writeDouble(*this, spacing.name, value); } // the number alone
void OrbTreeLayoutStatistic::removeSpacing() { spacing.remove(*this); }

const XMLCh* OrbTreeLayoutStatistic::getPadding() const { return padding.get(*this); }
void OrbTreeLayoutStatistic::setPadding(const XMLCh* value) { padding.set(*this, value); }
void OrbTreeLayoutStatistic::setPadding(double value) { writeDouble(*this, padding.name, value); } // the number alone
void OrbTreeLayoutStatistic::removePadding() { padding.remove(*this); }
