// A join of rows to a map.
#include "orbmapstatistic.h"

#include "ctvariabletype.h"
#include "family.h"
#include "orbcategories.h"
#include "orbsourcevariable.h"
#include "orbuni.h"
#include "reference.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text mapFile{OrbUni::_mapFile};
constexpr Text layer{OrbUni::_layer};
constexpr Text mapKey{OrbUni::_mapKey};
constexpr Text dataKey{OrbUni::_dataKey};
constexpr Taking<CTVariableType, Reference<OrbSourceVariable>> keyVariable{OrbUni::_keyVariable};
constexpr Boolean showAll{OrbUni::_showAll};

using Attributes = AttributeList<id, mapFile, layer, mapKey, dataKey, keyVariable, showAll>;

using Families = ChildFamilies<FamilyList<OrbCategories>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbMapStatistic>() {
  return elementDescription<OrbMapStatistic, Attributes, Families>;
}

struct OrbMapStatistic::Children : Families {};

OrbMapStatistic::OrbMapStatistic(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbMapStatistic::OrbMapStatistic(xercesc::DOMElement* element, const XMLCh* mapFile) : OrbMapStatistic(element) {
  setMapFile(mapFile);
}
OrbMapStatistic::~OrbMapStatistic() = default;

const XMLCh* OrbMapStatistic::getId() const { return id.get(*this); }
void OrbMapStatistic::setId(const XMLCh* value) { id.set(*this, value); }
void OrbMapStatistic::removeId() { id.remove(*this); }

const XMLCh* OrbMapStatistic::getMapFile() const { return mapFile.get(*this); }
void OrbMapStatistic::setMapFile(const XMLCh* value) { mapFile.set(*this, value); }
void OrbMapStatistic::removeMapFile() { mapFile.remove(*this); }

const XMLCh* OrbMapStatistic::getLayer() const { return layer.get(*this); }
void OrbMapStatistic::setLayer(const XMLCh* value) { layer.set(*this, value); }
void OrbMapStatistic::removeLayer() { layer.remove(*this); }

const XMLCh* OrbMapStatistic::getMapKey() const { return mapKey.get(*this); }
void OrbMapStatistic::setMapKey(const XMLCh* value) { mapKey.set(*this, value); }
void OrbMapStatistic::removeMapKey() { mapKey.remove(*this); }

const XMLCh* OrbMapStatistic::getDataKey() const { return dataKey.get(*this); }
void OrbMapStatistic::setDataKey(const XMLCh* value) { dataKey.set(*this, value); }
void OrbMapStatistic::removeDataKey() { dataKey.remove(*this); }

OrbSourceVariable* OrbMapStatistic::getKeyVariable() const { return keyVariable.get(*this); }
void OrbMapStatistic::setKeyVariable(const CTVariableType& target) { keyVariable.set(*this, target); }
void OrbMapStatistic::removeKeyVariable() { keyVariable.remove(*this); }

bool OrbMapStatistic::getShowAll() const { return showAll.get(*this); }
void OrbMapStatistic::setShowAll(bool value) { showAll.set(*this, value); }
void OrbMapStatistic::removeShowAll() { showAll.remove(*this); }

OrbCategories* OrbMapStatistic::addCategories() { return children_->add<OrbCategories>(*this, atEnd); }
std::vector<OrbCategories*> OrbMapStatistic::getCategoriess() const { return children_->all<OrbCategories>(); }
unsigned int OrbMapStatistic::removeCategoriess() { return children_->removeAll<OrbCategories>(*this); }
