// What all graphic elements share.
#include "ctelementtype.h"

#include "attribute.h"
#include "ctaesthetic.h"
#include "family.h"
#include "keyword.h"
#include "orbaggregatestatistic.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbcollectrowsstatistic.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbconditionalstyle.h"
#include "orbcoordinates.h"
#include "orbdash.h"
#include "orbevaluatestatistic.h"
#include "orbimage.h"
#include "orboffset.h"
#include "orbpattern.h"
#include "orbposition.h"
#include "orbreplicate.h"
#include "orbrotation.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsplit.h"
#include "orbstyle.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtransparency.h"
#include "orbuni.h"
#include "orbvisibility.h"
#include "orbwhen.h"
#include "orbx.h"
#include "orby.h"
#include "orbz.h"
#include "reference.h"

using namespace orbchart;
using xercesc::DOMElement;

namespace {

constexpr Keyword<CTElementType::ENUM_labelCollisionHandling> labelCollisionHandlings[] = {
    {CTElementType::labelCollisionHandling_none, OrbUni::_none},
    {CTElementType::labelCollisionHandling_normal, OrbUni::_normal},
    {CTElementType::labelCollisionHandling_fast, OrbUni::_fast},
    {CTElementType::labelCollisionHandling_quality, OrbUni::_quality},
    {CTElementType::labelCollisionHandling_extreme, OrbUni::_extreme},
    {CTElementType::labelCollisionHandling_basic, OrbUni::_basic},
    {CTElementType::labelCollisionHandling_outside, OrbUni::_outside},
    {CTElementType::labelCollisionHandling_inside, OrbUni::_inside},
};

constexpr Keyword<CTElementType::ENUM_positionModifier> positionModifiers[] = {
    {CTElementType::positionModifier_none, OrbUni::_none},
    {CTElementType::positionModifier_center, OrbUni::_center},
    {CTElementType::positionModifier_stack, OrbUni::_stack},
    {CTElementType::positionModifier_stackInterpolating, OrbUni::_stackInterpolating},
    {CTElementType::positionModifier_setMissingsToZero, OrbUni::_setMissingsToZero},
    {CTElementType::positionModifier_minusIntersection, OrbUni::_minusIntersection},
    {CTElementType::positionModifier_dodge, OrbUni::_dodge},
    {CTElementType::positionModifier_pile, CTElementType::_UTF_positionModifier_pile},
    {CTElementType::positionModifier_jitterJointUniform, CTElementType::_UTF_positionModifier_jitterJointUniform},
    {CTElementType::positionModifier_jitterConditionalUniform,
     CTElementType::_UTF_positionModifier_jitterConditionalUniform},
    {CTElementType::positionModifier_jitterJointNormal, CTElementType::_UTF_positionModifier_jitterJointNormal},
    {CTElementType::positionModifier_jitterConditionalNormal,
     CTElementType::_UTF_positionModifier_jitterConditionalNormal},
    {CTElementType::positionModifier_centerStacked, CTElementType::_UTF_positionModifier_centerStacked},
};

constexpr Keyword<CTElementType::ENUM_clip> clips[] = {
    {CTElementType::clip_none, OrbUni::_none},
    {CTElementType::clip_cell, CTElementType::_UTF_clip_cell},
    {CTElementType::clip_domain, OrbUni::_domain},
};

// The families by group, in document order. A new family takes its place in its group, and with it in the record, in
// the loader and among the followers of the groups before it.
using Head = FamilyList<OrbConditionalStyle>;
using Statistics = FamilyList<OrbBinStatistic, OrbAggregateStatistic, OrbCollectRowsStatistic, OrbSummaryStatistic,
                              OrbEvaluateStatistic, OrbWhen>;
using Aesthetics = FamilyList<OrbStyleBy, OrbDash, OrbShape, OrbSize, OrbRotation, OrbColor, OrbOffset, OrbPattern,
                              OrbTransparency, OrbSplit, OrbColorComponent>;
using Positions = FamilyList<OrbX, OrbY, OrbZ, OrbPosition>;

using AfterAesthetics = Positions;
using AfterStatistics = Joined<Aesthetics, AfterAesthetics>;
using AfterHead = Joined<FamilyList<OrbAttach>, Statistics, AfterStatistics>;

// They go last, and no later add looks for them, save that what belongs to the head goes before the first attachment.
using Unplaced = FamilyList<OrbAttach, OrbVisibility, OrbImage, OrbReplicate>;

} // namespace

struct CTElementType::Children : ChildFamilies<Joined<Head, Statistics, Aesthetics, Positions, Unplaced>> {};

CTElementType::CTElementType(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTElementType::CTElementType(DOMElement* element, const XMLCh* id) : CTElementType(element) { setId(id); }
CTElementType::~CTElementType() = default;

const XMLCh* CTElementType::getId() const { return GetAttribute(OrbUni::_id); }
void CTElementType::setId(const XMLCh* id) { writeId(*this, id); }
void CTElementType::removeId() { removeAttribute(*this, OrbUni::_id); }

OrbStyle* CTElementType::getStyle() const { return readReference<OrbStyle>(*this, OrbUni::_style); }
void CTElementType::setStyle(const OrbStyle& style) { writeReference(*this, OrbUni::_style, style); }
void CTElementType::removeStyle() { removeAttribute(*this, OrbUni::_style); }

const XMLCh* CTElementType::getName() const { return GetAttribute(OrbUni::_name); }
void CTElementType::setName(const XMLCh* name) { SetAttribute(OrbUni::_name, name); }
void CTElementType::removeName() { removeAttribute(*this, OrbUni::_name); }

bool CTElementType::getDot() const { return readBoolean(*this, OrbUni::_dot); }
void CTElementType::setDot(bool dot) { writeBoolean(*this, OrbUni::_dot, dot); }
void CTElementType::removeDot() { removeAttribute(*this, OrbUni::_dot); }

CTElementType::ENUM_labelCollisionHandling CTElementType::getLabelCollisionHandling() const {
  return readKeyword(*this, OrbUni::_labelCollisionHandling, labelCollisionHandlings, labelCollisionHandling_unset);
}
void CTElementType::setLabelCollisionHandling(ENUM_labelCollisionHandling labelCollisionHandling) {
  writeKeyword(*this, OrbUni::_labelCollisionHandling, labelCollisionHandlings, labelCollisionHandling);
}
bool CTElementType::isLabelCollisionHandlingPresent() const {
  return isPresent(*this, OrbUni::_labelCollisionHandling);
}
void CTElementType::removeLabelCollisionHandling() { removeAttribute(*this, OrbUni::_labelCollisionHandling); }

bool CTElementType::getShowCollidingLabels() const { return readBoolean(*this, OrbUni::_showCollidingLabels); }
void CTElementType::setShowCollidingLabels(bool showCollidingLabels) {
  writeBoolean(*this, OrbUni::_showCollidingLabels, showCollidingLabels);
}
void CTElementType::removeShowCollidingLabels() { removeAttribute(*this, OrbUni::_showCollidingLabels); }

OrbCoordinates* CTElementType::getCoordinates() const {
  return readReference<OrbCoordinates>(*this, OrbUni::_coordinates);
}
void CTElementType::setCoordinates(const OrbCoordinates& coordinates) {
  writeReference(*this, OrbUni::_coordinates, coordinates);
}
void CTElementType::removeCoordinates() { removeAttribute(*this, OrbUni::_coordinates); }

CTElementType::ENUM_positionModifier CTElementType::getPositionModifier() const {
  return readKeyword(*this, OrbUni::_positionModifier, positionModifiers, positionModifier_unset);
}
void CTElementType::setPositionModifier(ENUM_positionModifier positionModifier) {
  writeKeyword(*this, OrbUni::_positionModifier, positionModifiers, positionModifier);
}
void CTElementType::removePositionModifier() { removeAttribute(*this, OrbUni::_positionModifier); }

double CTElementType::getXLocation() const { return readDouble(*this, OrbUni::_xLocation); }
void CTElementType::setXLocation(double xLocation) { writeDouble(*this, OrbUni::_xLocation, xLocation); }
void CTElementType::removeXLocation() { removeAttribute(*this, OrbUni::_xLocation); }

double CTElementType::getYLocation() const { return readDouble(*this, OrbUni::_yLocation); }
void CTElementType::setYLocation(double yLocation) { writeDouble(*this, OrbUni::_yLocation, yLocation); }
void CTElementType::removeYLocation() { removeAttribute(*this, OrbUni::_yLocation); }

double CTElementType::getZLocation() const { return readDouble(*this, OrbUni::_zLocation); }
void CTElementType::setZLocation(double zLocation) { writeDouble(*this, OrbUni::_zLocation, zLocation); }
void CTElementType::removeZLocation() { removeAttribute(*this, OrbUni::_zLocation); }

int CTElementType::getZOrder() const { return readInteger(*this, OrbUni::_zOrder); }
void CTElementType::setZOrder(int zOrder) { writeInteger(*this, OrbUni::_zOrder, zOrder); }
void CTElementType::removeZOrder() { removeAttribute(*this, OrbUni::_zOrder); }

CTElementType::ENUM_clip CTElementType::getClip() const { return readKeyword(*this, OrbUni::_clip, clips, clip_none); }
void CTElementType::setClip(ENUM_clip clip) { writeKeyword(*this, OrbUni::_clip, clips, clip); }
void CTElementType::removeClip() { removeAttribute(*this, OrbUni::_clip); }

OrbConditionalStyle* CTElementType::addConditionalStyle(const XMLCh* when, const OrbStyle& style) {
  return children_->add<OrbConditionalStyle>(*this, AfterHead{}, when, style);
}
std::vector<OrbConditionalStyle*> CTElementType::getConditionalStyles() const {
  return children_->all<OrbConditionalStyle>();
}
unsigned int CTElementType::removeConditionalStyles() { return children_->removeAll<OrbConditionalStyle>(*this); }

OrbStyleBy* CTElementType::addStyleBy(CTAesthetic* target) {
  if (target == nullptr || target->getImplementation()->getParentNode() != getImplementation())
    return children_->add<OrbStyleBy>(*this, AfterAesthetics{});
  const auto [x, y, z, position] = children_->firstElements(AfterAesthetics{});
  xercesc::DOMNode* const followers[] = {target->getImplementation(), x, y, z, position};
  return children_->addBefore<OrbStyleBy>(*this, followers);
}
std::vector<OrbStyleBy*> CTElementType::getStyleBys() const { return children_->all<OrbStyleBy>(); }
unsigned int CTElementType::removeStyleBys() { return children_->removeAll<OrbStyleBy>(*this); }
bool CTElementType::removeStyleBy(unsigned long index) { return children_->removeAt<OrbStyleBy>(*this, index); }

OrbDash* CTElementType::addDash() { return children_->add<OrbDash>(*this, AfterAesthetics{}); }
std::vector<OrbDash*> CTElementType::getDashs() const { return children_->all<OrbDash>(); }
unsigned int CTElementType::removeDashs() { return children_->removeAll<OrbDash>(*this); }
bool CTElementType::removeDash(unsigned long index) { return children_->removeAt<OrbDash>(*this, index); }

OrbShape* CTElementType::addShape() { return children_->add<OrbShape>(*this, AfterAesthetics{}); }
std::vector<OrbShape*> CTElementType::getShapes() const { return children_->all<OrbShape>(); }
unsigned int CTElementType::removeShapes() { return children_->removeAll<OrbShape>(*this); }
bool CTElementType::removeShape(unsigned long index) { return children_->removeAt<OrbShape>(*this, index); }

OrbSize* CTElementType::addSize() { return children_->add<OrbSize>(*this, AfterAesthetics{}); }
std::vector<OrbSize*> CTElementType::getSizes() const { return children_->all<OrbSize>(); }
unsigned int CTElementType::removeSizes() { return children_->removeAll<OrbSize>(*this); }

OrbRotation* CTElementType::addRotation() { return children_->add<OrbRotation>(*this, AfterAesthetics{}); }
std::vector<OrbRotation*> CTElementType::getRotations() const { return children_->all<OrbRotation>(); }
unsigned int CTElementType::removeRotations() { return children_->removeAll<OrbRotation>(*this); }

OrbColor* CTElementType::addColor() { return children_->add<OrbColor>(*this, AfterAesthetics{}); }
std::vector<OrbColor*> CTElementType::getColors() const { return children_->all<OrbColor>(); }
unsigned int CTElementType::removeColors() { return children_->removeAll<OrbColor>(*this); }
bool CTElementType::removeColor(unsigned long index) { return children_->removeAt<OrbColor>(*this, index); }

OrbOffset* CTElementType::addOffset() { return children_->add<OrbOffset>(*this, AfterAesthetics{}); }
std::vector<OrbOffset*> CTElementType::getOffsets() const { return children_->all<OrbOffset>(); }
unsigned int CTElementType::removeOffsets() { return children_->removeAll<OrbOffset>(*this); }

OrbPattern* CTElementType::addPattern() { return children_->add<OrbPattern>(*this, AfterAesthetics{}); }
std::vector<OrbPattern*> CTElementType::getPatterns() const { return children_->all<OrbPattern>(); }
unsigned int CTElementType::removePatterns() { return children_->removeAll<OrbPattern>(*this); }
bool CTElementType::removePattern(unsigned long index) { return children_->removeAt<OrbPattern>(*this, index); }

OrbTransparency* CTElementType::addTransparency() { return children_->add<OrbTransparency>(*this, AfterAesthetics{}); }
std::vector<OrbTransparency*> CTElementType::getTransparencys() const { return children_->all<OrbTransparency>(); }
unsigned int CTElementType::removeTransparencys() { return children_->removeAll<OrbTransparency>(*this); }

OrbSplit* CTElementType::addSplit() { return children_->add<OrbSplit>(*this, AfterAesthetics{}); }
std::vector<OrbSplit*> CTElementType::getSplits() const { return children_->all<OrbSplit>(); }
unsigned int CTElementType::removeSplits() { return children_->removeAll<OrbSplit>(*this); }

OrbColorComponent* CTElementType::addColorComponent() {
  return children_->add<OrbColorComponent>(*this, AfterAesthetics{});
}
std::vector<OrbColorComponent*> CTElementType::getColorComponents() const {
  return children_->all<OrbColorComponent>();
}
unsigned int CTElementType::removeColorComponents() { return children_->removeAll<OrbColorComponent>(*this); }

OrbPosition* CTElementType::addPosition() { return children_->add<OrbPosition>(*this, atEnd); }
std::vector<OrbPosition*> CTElementType::getPositions() const { return children_->all<OrbPosition>(); }
unsigned int CTElementType::removePositions() { return children_->removeAll<OrbPosition>(*this); }

OrbX* CTElementType::addX() { return children_->add<OrbX>(*this, OnlyOne("X", "ElementType"), atEnd); }
OrbX* CTElementType::getX() const { return children_->first<OrbX>(); }
unsigned int CTElementType::removeXs() { return children_->removeAll<OrbX>(*this); }

OrbY* CTElementType::addY() { return children_->add<OrbY>(*this, OnlyOne("Y", "ElementType"), atEnd); }
OrbY* CTElementType::getY() const { return children_->first<OrbY>(); }
unsigned int CTElementType::removeYs() { return children_->removeAll<OrbY>(*this); }

OrbZ* CTElementType::addZ() { return children_->add<OrbZ>(*this, OnlyOne("Z", "ElementType"), atEnd); }
OrbZ* CTElementType::getZ() const { return children_->first<OrbZ>(); }
unsigned int CTElementType::removeZs() { return children_->removeAll<OrbZ>(*this); }

OrbBinStatistic* CTElementType::addBinStatistic() { return children_->add<OrbBinStatistic>(*this, AfterStatistics{}); }
std::vector<OrbBinStatistic*> CTElementType::getBinStatistics() const { return children_->all<OrbBinStatistic>(); }
unsigned int CTElementType::removeBinStatistics() { return children_->removeAll<OrbBinStatistic>(*this); }

OrbAggregateStatistic* CTElementType::addAggregateStatistic() {
  return children_->add<OrbAggregateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbAggregateStatistic*> CTElementType::getAggregateStatistics() const {
  return children_->all<OrbAggregateStatistic>();
}
unsigned int CTElementType::removeAggregateStatistics() { return children_->removeAll<OrbAggregateStatistic>(*this); }

OrbCollectRowsStatistic* CTElementType::addCollectRowsStatistic() {
  return children_->add<OrbCollectRowsStatistic>(*this, AfterStatistics{});
}
std::vector<OrbCollectRowsStatistic*> CTElementType::getCollectRowsStatistics() const {
  return children_->all<OrbCollectRowsStatistic>();
}
unsigned int CTElementType::removeCollectRowsStatistics() {
  return children_->removeAll<OrbCollectRowsStatistic>(*this);
}

OrbSummaryStatistic* CTElementType::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSummaryStatistic*> CTElementType::getSummaryStatistics() const {
  return children_->all<OrbSummaryStatistic>();
}
unsigned int CTElementType::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbEvaluateStatistic* CTElementType::addEvaluateStatistic() {
  return children_->add<OrbEvaluateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbEvaluateStatistic*> CTElementType::getEvaluateStatistics() const {
  return children_->all<OrbEvaluateStatistic>();
}
unsigned int CTElementType::removeEvaluateStatistics() { return children_->removeAll<OrbEvaluateStatistic>(*this); }

OrbAttach* CTElementType::addAttach() { return children_->add<OrbAttach>(*this, atEnd); }
std::vector<OrbAttach*> CTElementType::getAttachs() const { return children_->all<OrbAttach>(); }
unsigned int CTElementType::removeAttach() { return children_->removeAll<OrbAttach>(*this); }

OrbVisibility* CTElementType::addVisibility() { return children_->add<OrbVisibility>(*this, atEnd); }
std::vector<OrbVisibility*> CTElementType::getVisibilitys() const { return children_->all<OrbVisibility>(); }
unsigned int CTElementType::removeVisibilitys() { return children_->removeAll<OrbVisibility>(*this); }

OrbImage* CTElementType::addImage() { return children_->add<OrbImage>(*this, atEnd); }
std::vector<OrbImage*> CTElementType::getImages() const { return children_->all<OrbImage>(); }
unsigned int CTElementType::removeImages() { return children_->removeAll<OrbImage>(*this); }

OrbReplicate* CTElementType::addReplicate() { return children_->add<OrbReplicate>(*this, atEnd); }
std::vector<OrbReplicate*> CTElementType::getReplicates() const { return children_->all<OrbReplicate>(); }
unsigned int CTElementType::removeReplicates() { return children_->removeAll<OrbReplicate>(*this); }

OrbWhen* CTElementType::addWhen() { return children_->add<OrbWhen>(*this, AfterStatistics{}); }
std::vector<OrbWhen*> CTElementType::getWhens() const { return children_->all<OrbWhen>(); }
unsigned int CTElementType::removeWhens() { return children_->removeAll<OrbWhen>(*this); }
