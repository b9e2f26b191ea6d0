// The graph algebra of a graph.
#include "orbfaceting.h"

#include "algebraoperands.h"
#include "attribute.h"
#include "orbaggregatestatistic.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbcollectrowsstatistic.h"
#include "orbevaluatestatistic.h"
#include "orblayer.h"
#include "orbreplicate.h"
#include "orbsummarystatistic.h"
#include "orbuni.h"
#include "orbwhen.h"

using namespace orbchart;

namespace {

constexpr Id id;
constexpr Text method{OrbUni::_method};
constexpr Boolean augmentEmptyCells{OrbFaceting::_UTF_augmentEmptyCells};

using Attributes = AttributeList<id, method, augmentEmptyCells>;

// The families by band, in document order. A new family takes its place in its band.
using Statistics = FamilyList<OrbAttach, OrbBinStatistic, OrbAggregateStatistic, OrbCollectRowsStatistic, OrbReplicate,
                              OrbEvaluateStatistic, OrbSummaryStatistic, OrbWhen>;
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

OrbEvaluateStatistic* OrbFaceting::addEvaluateStatistic() {
  return children_->add<OrbEvaluateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbEvaluateStatistic*> OrbFaceting::getEvaluateStatistics() const {
  return children_->all<OrbEvaluateStatistic>();
}
unsigned int OrbFaceting::removeEvaluateStatistics() { return children_->removeAll<OrbEvaluateStatistic>(*this); }

OrbSummaryStatistic* OrbFaceting::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSummaryStatistic*> OrbFaceting::getSummaryStatistics() const {
  return children_->all<OrbSummaryStatistic>();
}
unsigned int OrbFaceting::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbWhen* OrbFaceting::addWhen() { return children_->add<OrbWhen>(*this, AfterStatistics{}); }
std::vector<OrbWhen*> OrbFaceting::getWhens() const { return children_->all<OrbWhen>(); }
unsigned int OrbFaceting::removeWhens() { return children_->removeAll<OrbWhen>(*this); }

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
