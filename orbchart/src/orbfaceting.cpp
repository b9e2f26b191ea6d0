// The graph algebra of a graph.
#include "orbfaceting.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbaggregatestatistic.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbclusteringstatistic.h"
#include "orbcollectrowsstatistic.h"
#include "orbdistributionstatistic.h"
#include "orbevaluatestatistic.h"
#include "orbfixedwindowdensitystatistic.h"
#include "orbgraphlayoutstatistic.h"
#include "orblayer.h"
#include "orblinkstatistic.h"
#include "orbmapstatistic.h"
#include "orbnearestneighbordensitystatistic.h"
#include "orbpatternlinkstatistic.h"
#include "orbregionstatistic.h"
#include "orbreplicate.h"
#include "orbsmoothstatistic.h"
#include "orbsomstatistic.h"
#include "orbsummarystatistic.h"
#include "orbtagcloudstatistic.h"
#include "orbtreelayoutstatistic.h"
#include "orbtukeystatistic.h"
#include "orbuni.h"
#include "orbwhen.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text method{OrbUni::_method};
constexpr Boolean augmentEmptyCells{OrbFaceting::_UTF_augmentEmptyCells};

using Attributes = AttributeList<id, method, augmentEmptyCells>;

// The families by band, in document order.
using Statistics =
    FamilyList<OrbAttach, OrbBinStatistic, OrbAggregateStatistic, OrbCollectRowsStatistic, OrbReplicate,
               OrbDistributionStatistic, OrbGraphLayoutStatistic, OrbLinkStatistic, OrbMapStatistic, OrbRegionStatistic,
               OrbSmoothStatistic, OrbEvaluateStatistic, OrbFixedWindowDensityStatistic,
               OrbNearestNeighborDensityStatistic, OrbSummaryStatistic, OrbTagCloudStatistic, OrbTreeLayoutStatistic,
               OrbClusteringStatistic, OrbSOMStatistic, OrbTukeyStatistic, OrbWhen, OrbPatternLinkStatistic>;
using Algebra = Joined<AlgebraOperands, FamilyList<OrbLayer>>;

using AfterStatistics = Algebra;

using Families = ChildFamilies<Joined<Statistics, Algebra>>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<OrbFaceting>() {
  return elementDescription<OrbFaceting, Attributes, Families>;
}

struct OrbFaceting::Children : Families {};

OrbFaceting::OrbFaceting(xercesc::DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
  bind(*this);
}
OrbFaceting::~OrbFaceting() = default;

const XMLCh* OrbFaceting::getId() const { return id.get(*this); }
void OrbFaceting::setId(const XMLCh* value) { id.set(*this, value); }
void OrbFaceting::removeId() { id.remove(*this); }

const XMLCh* OrbFaceting::getMethod() const { return method.get(*this); }
void OrbFaceting::setMethod(const XMLCh* value) { method.set(*this, value); }
void OrbFaceting::removeMethod() { method.remove(*this); }

bool OrbFaceting::getAugmentEmptyCells() const { return augmentEmptyCells.get(*this); }
void OrbFaceting::setAugmentEmptyCells(bool value) { augmentEmptyCells.set(*this, value); }
bool OrbFaceting::isAugmentEmptyCellsPresent() const { return augmentEmptyCells.isPresent(*this); }
void OrbFaceting::removeAugmentEmptyCells() { augmentEmptyCells.remove(*this); }

OrbAttach* OrbFaceting::addAttach() { return children_->add<OrbAttach>(*this, AfterStatistics{}); }
std::vector<OrbAttach*> OrbFaceting::getAttachs() const { return children_->all<OrbAttach>(); }
unsigned int OrbFaceting::removeAttachs() { return children_->removeAll<OrbAttach>(*this); }

OrbBinStatistic* OrbFaceting::addBinStatistic() { return children_->add<OrbBinStatistic>(*this, AfterStatistics{}); }
std::vector<OrbBinStatistic*> OrbFaceting::getBinStatistics() const { return children_->all<OrbBinStatistic>(); }
unsigned int OrbFaceting::removeBinStatistics() { return children_->removeAll<OrbBinStatistic>(*this); }

OrbAggregateStatistic* OrbFaceting::addAggregateStatistic() {
  return children_->add<OrbAggregateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbAggregateStatistic*> OrbFaceting::getAggregateStatistics() const {
  return children_->all<OrbAggregateStatistic>();
}
unsigned int OrbFaceting::removeAggregateStatistics() { return children_->removeAll<OrbAggregateStatistic>(*this); }

OrbCollectRowsStatistic* OrbFaceting::addCollectRowsStatistic() {
  return children_->add<OrbCollectRowsStatistic>(*this, AfterStatistics{});
}
std::vector<OrbCollectRowsStatistic*> OrbFaceting::getCollectRowsStatistics() const {
  return children_->all<OrbCollectRowsStatistic>();
}
unsigned int OrbFaceting::removeCollectRowsStatistics() { return children_->removeAll<OrbCollectRowsStatistic>(*this); }

OrbReplicate* OrbFaceting::addReplicate() { return children_->add<OrbReplicate>(*this, AfterStatistics{}); }
std::vector<OrbReplicate*> OrbFaceting::getReplicates() const { return children_->all<OrbReplicate>(); }
unsigned int OrbFaceting::removeReplicates() { return children_->removeAll<OrbReplicate>(*this); }

OrbDistributionStatistic* OrbFaceting::addDistributionStatistic() {
  return children_->add<OrbDistributionStatistic>(*this, AfterStatistics{});
}
std::vector<OrbDistributionStatistic*> OrbFaceting::getDistributionStatistics() const {
  return children_->all<OrbDistributionStatistic>();
}
unsigned int OrbFaceting::removeDistributionStatistics() {
  return children_->removeAll<OrbDistributionStatistic>(*this);
}

OrbGraphLayoutStatistic* OrbFaceting::addGraphLayoutStatistic() {
  return children_->add<OrbGraphLayoutStatistic>(*this, AfterStatistics{});
}
std::vector<OrbGraphLayoutStatistic*> OrbFaceting::getGraphLayoutStatistics() const {
  return children_->all<OrbGraphLayoutStatistic>();
}
unsigned int OrbFaceting::removeGraphLayoutStatistics() { return children_->removeAll<OrbGraphLayoutStatistic>(*this); }

OrbLinkStatistic* OrbFaceting::addLinkStatistic() { return children_->add<OrbLinkStatistic>(*this, AfterStatistics{}); }
std::vector<OrbLinkStatistic*> OrbFaceting::getLinkStatistics() const { return children_->all<OrbLinkStatistic>(); }
unsigned int OrbFaceting::removeLinkStatistics() { return children_->removeAll<OrbLinkStatistic>(*this); }

OrbMapStatistic* OrbFaceting::addMapStatistic() { return children_->add<OrbMapStatistic>(*this, AfterStatistics{}); }
std::vector<OrbMapStatistic*> OrbFaceting::getMapStatistics() const { return children_->all<OrbMapStatistic>(); }
unsigned int OrbFaceting::removeMapStatistics() { return children_->removeAll<OrbMapStatistic>(*this); }

OrbRegionStatistic* OrbFaceting::addRegionStatistic() {
  return children_->add<OrbRegionStatistic>(*this, AfterStatistics{});
}
std::vector<OrbRegionStatistic*> OrbFaceting::getRegionStatistics() const {
  return children_->all<OrbRegionStatistic>();
}
unsigned int OrbFaceting::removeRegionStatistics() { return children_->removeAll<OrbRegionStatistic>(*this); }

OrbSmoothStatistic* OrbFaceting::addSmoothStatistic() {
  return children_->add<OrbSmoothStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSmoothStatistic*> OrbFaceting::getSmoothStatistics() const {
  return children_->all<OrbSmoothStatistic>();
}
unsigned int OrbFaceting::removeSmoothStatistics() { return children_->removeAll<OrbSmoothStatistic>(*this); }

OrbEvaluateStatistic* OrbFaceting::addEvaluateStatistic() {
  return children_->add<OrbEvaluateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbEvaluateStatistic*> OrbFaceting::getEvaluateStatistics() const {
  return children_->all<OrbEvaluateStatistic>();
}
unsigned int OrbFaceting::removeEvaluateStatistics() { return children_->removeAll<OrbEvaluateStatistic>(*this); }

OrbFixedWindowDensityStatistic* OrbFaceting::addFixedWindowDensityStatistic() {
  return children_->add<OrbFixedWindowDensityStatistic>(*this, AfterStatistics{});
}
std::vector<OrbFixedWindowDensityStatistic*> OrbFaceting::getFixedWindowDensityStatistics() const {
  return children_->all<OrbFixedWindowDensityStatistic>();
}
unsigned int OrbFaceting::removeFixedWindowDensityStatistics() {
  return children_->removeAll<OrbFixedWindowDensityStatistic>(*this);
}

OrbNearestNeighborDensityStatistic* OrbFaceting::addNearestNeighborDensityStatistic() {
  return children_->add<OrbNearestNeighborDensityStatistic>(*this, AfterStatistics{});
}
std::vector<OrbNearestNeighborDensityStatistic*> OrbFaceting::getNearestNeighborDensityStatistics() const {
  return children_->all<OrbNearestNeighborDensityStatistic>();
}
unsigned int OrbFaceting::removeNearestNeighborDensityStatistics() {
  return children_->removeAll<OrbNearestNeighborDensityStatistic>(*this);
}

OrbSummaryStatistic* OrbFaceting::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSummaryStatistic*> OrbFaceting::getSummaryStatistics() const {
  return children_->all<OrbSummaryStatistic>();
}
unsigned int OrbFaceting::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbTagCloudStatistic* OrbFaceting::addTagCloudStatistic() {
  return children_->add<OrbTagCloudStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTagCloudStatistic*> OrbFaceting::getTagCloudStatistics() const {
  return children_->all<OrbTagCloudStatistic>();
}
unsigned int OrbFaceting::removeTagCloudStatistics() { return children_->removeAll<OrbTagCloudStatistic>(*this); }

OrbTreeLayoutStatistic* OrbFaceting::addTreeLayoutStatistic() {
  return children_->add<OrbTreeLayoutStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTreeLayoutStatistic*> OrbFaceting::getTreeLayoutStatistics() const {
  return children_->all<OrbTreeLayoutStatistic>();
}
unsigned int OrbFaceting::removeTreeLayoutStatistics() { return children_->removeAll<OrbTreeLayoutStatistic>(*this); }

OrbClusteringStatistic* OrbFaceting::addClusteringStatistic() {
  return children_->add<OrbClusteringStatistic>(*this, AfterStatistics{});
}
std::vector<OrbClusteringStatistic*> OrbFaceting::getClusteringStatistics() const {
  return children_->all<OrbClusteringStatistic>();
}
unsigned int OrbFaceting::removeClusteringStatistics() { return children_->removeAll<OrbClusteringStatistic>(*this); }

OrbSOMStatistic* OrbFaceting::addSOMStatistic() { return children_->add<OrbSOMStatistic>(*this, AfterStatistics{}); }
std::vector<OrbSOMStatistic*> OrbFaceting::getSOMStatistics() const { return children_->all<OrbSOMStatistic>(); }
unsigned int OrbFaceting::removeSOMStatistics() { return children_->removeAll<OrbSOMStatistic>(*this); }

OrbTukeyStatistic* OrbFaceting::addTukeyStatistic() {
  return children_->add<OrbTukeyStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTukeyStatistic*> OrbFaceting::getTukeyStatistics() const { return children_->all<OrbTukeyStatistic>(); }
unsigned int OrbFaceting::removeTukeyStatistics() { return children_->removeAll<OrbTukeyStatistic>(*this); }

OrbWhen* OrbFaceting::addWhen() { return children_->add<OrbWhen>(*this, AfterStatistics{}); }
std::vector<OrbWhen*> OrbFaceting::getWhens() const { return children_->all<OrbWhen>(); }
unsigned int OrbFaceting::removeWhens() { return children_->removeAll<OrbWhen>(*this); }

OrbPatternLinkStatistic* OrbFaceting::addPatternLinkStatistic() {
  return children_->add<OrbPatternLinkStatistic>(*this, AfterStatistics{});
}
std::vector<OrbPatternLinkStatistic*> OrbFaceting::getPatternLinkStatistics() const {
  return children_->all<OrbPatternLinkStatistic>();
}
unsigned int OrbFaceting::removePatternLinkStatistics() { return children_->removeAll<OrbPatternLinkStatistic>(*this); }

OrbVariableReference* OrbFaceting::addVariableReference() { return children_->add<OrbVariableReference>(*this, atEnd); }
std::vector<OrbVariableReference*> OrbFaceting::getVariableReferences() const {
  return children_->all<OrbVariableReference>();
}
unsigned int OrbFaceting::removeVariableReferences() { return children_->removeAll<OrbVariableReference>(*this); }

OrbUnity* OrbFaceting::addUnity() { return children_->add<OrbUnity>(*this, atEnd); }
std::vector<OrbUnity*> OrbFaceting::getUnitys() const { return children_->all<OrbUnity>(); }
unsigned int OrbFaceting::removeUnitys() { return children_->removeAll<OrbUnity>(*this); }

OrbBlend* OrbFaceting::addBlend() { return children_->add<OrbBlend>(*this, atEnd); }
std::vector<OrbBlend*> OrbFaceting::getBlends() const { return children_->all<OrbBlend>(); }
unsigned int OrbFaceting::removeBlends() { return children_->removeAll<OrbBlend>(*this); }

OrbCross* OrbFaceting::addCross() { return children_->add<OrbCross>(*this, atEnd); }
std::vector<OrbCross*> OrbFaceting::getCrosss() const { return children_->all<OrbCross>(); }
unsigned int OrbFaceting::removeCrosss() { return children_->removeAll<OrbCross>(*this); }

OrbDot* OrbFaceting::addDot() { return children_->add<OrbDot>(*this, atEnd); }
std::vector<OrbDot*> OrbFaceting::getDots() const { return children_->all<OrbDot>(); }
unsigned int OrbFaceting::removeDots() { return children_->removeAll<OrbDot>(*this); }

OrbNest* OrbFaceting::addNest() { return children_->add<OrbNest>(*this, atEnd); }
std::vector<OrbNest*> OrbFaceting::getNests() const { return children_->all<OrbNest>(); }
unsigned int OrbFaceting::removeNests() { return children_->removeAll<OrbNest>(*this); }

OrbLayer* OrbFaceting::addLayer() { return children_->add<OrbLayer>(*this, atEnd); }
std::vector<OrbLayer*> OrbFaceting::getLayers() const { return children_->all<OrbLayer>(); }
unsigned int OrbFaceting::removeLayers() { return children_->removeAll<OrbLayer>(*this); }
