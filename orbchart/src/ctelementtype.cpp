// What all graphic elements share.
#include "ctelementtype.h"

#include "attribute.h"
#include "ctaesthetic.h"
#include "ctvariabletype.h"
#include "family.h"
#include "keyword.h"
#include "orbaggregatestatistic.h"
#include "orbattach.h"
#include "orbbinstatistic.h"
#include "orbclusteringstatistic.h"
#include "orbcollectrowsstatistic.h"
#include "orbcolor.h"
#include "orbcolorcomponent.h"
#include "orbconditionalstyle.h"
#include "orbcoordinates.h"
#include "orbdash.h"
#include "orbdistributionstatistic.h"
#include "orbevaluatestatistic.h"
#include "orbextension.h"
#include "orbfixedwindowdensitystatistic.h"
#include "orbgraphlayoutstatistic.h"
#include "orbimage.h"
#include "orblabeling.h"
#include "orblinkstatistic.h"
#include "orbmapstatistic.h"
#include "orbnearestneighbordensitystatistic.h"
#include "orboffset.h"
#include "orbpattern.h"
#include "orbpatternlinkstatistic.h"
#include "orbposition.h"
#include "orbregionstatistic.h"
#include "orbreplicate.h"
#include "orbrotation.h"
#include "orbshape.h"
#include "orbsize.h"
#include "orbsmoothstatistic.h"
#include "orbsomstatistic.h"
#include "orbsplit.h"
#include "orbstyle.h"
#include "orbstyleby.h"
#include "orbsummarystatistic.h"
#include "orbtagcloudstatistic.h"
#include "orbtransparency.h"
#include "orbtreelayoutstatistic.h"
#include "orbtukeystatistic.h"
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

constexpr Id id;
constexpr Reference<OrbStyle> style{OrbUni::_style};
constexpr Text name{OrbUni::_name};
constexpr Boolean dot{OrbUni::_dot};
constexpr Keywords labelCollisionHandling{OrbUni::_labelCollisionHandling,
                                          CTElementType::labelCollisionHandling_unset,
                                          {
                                              {CTElementType::labelCollisionHandling_none, OrbUni::_none},
                                              {CTElementType::labelCollisionHandling_normal, OrbUni::_normal},
                                              {CTElementType::labelCollisionHandling_fast, OrbUni::_fast},
                                              {CTElementType::labelCollisionHandling_quality, OrbUni::_quality},
                                              {CTElementType::labelCollisionHandling_extreme, OrbUni::_extreme},
                                              {CTElementType::labelCollisionHandling_basic, OrbUni::_basic},
                                              {CTElementType::labelCollisionHandling_outside, OrbUni::_outside},
                                              {CTElementType::labelCollisionHandling_inside, OrbUni::_inside},
                                          }};
constexpr Boolean showCollidingLabels{OrbUni::_showCollidingLabels};
constexpr Reference<OrbCoordinates> coordinates{OrbUni::_coordinates};
constexpr Keywords positionModifier{
    OrbUni::_positionModifier,
    CTElementType::positionModifier_unset,
    {
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
    }};
constexpr Double xLocation{OrbUni::_xLocation};
constexpr Double yLocation{OrbUni::_yLocation};
constexpr Double zLocation{OrbUni::_zLocation};
constexpr Integer zOrder{OrbUni::_zOrder};
constexpr Keywords clip{OrbUni::_clip,
                        AbsentReadsAs(CTElementType::clip_none),
                        {
                            {CTElementType::clip_none, OrbUni::_none},
                            {CTElementType::clip_cell, CTElementType::_UTF_clip_cell},
                            {CTElementType::clip_domain, OrbUni::_domain},
                        }};

using Attributes = AttributeList<id, style, name, dot, labelCollisionHandling, showCollidingLabels, coordinates,
                                 positionModifier, xLocation, yLocation, zLocation, zOrder, clip>;

constexpr OnlyOne oneX{"X", "ElementType"};
constexpr OnlyOne oneY{"Y", "ElementType"};
constexpr OnlyOne oneZ{"Z", "ElementType"};

// The families in the order of the language.
using Families = ChildFamilies<FamilyList<
    OrbExtension, OrbConditionalStyle, OrbStyleBy, OrbDash, OrbShape, OrbSize, OrbRotation, OrbColor, OrbOffset,
    OrbPattern, OrbTransparency, OrbLabeling, OrbSplit, OrbColorComponent, OrbPosition, Limited<OrbX, oneX>,
    Limited<OrbY, oneY>, Limited<OrbZ, oneZ>, OrbBinStatistic, OrbAggregateStatistic, OrbClusteringStatistic,
    OrbCollectRowsStatistic, OrbDistributionStatistic, OrbGraphLayoutStatistic, OrbLinkStatistic, OrbMapStatistic,
    OrbRegionStatistic, OrbSmoothStatistic, OrbSummaryStatistic, OrbTagCloudStatistic, OrbTreeLayoutStatistic,
    OrbEvaluateStatistic, OrbFixedWindowDensityStatistic, OrbNearestNeighborDensityStatistic, OrbTukeyStatistic,
    OrbAttach, OrbVisibility, OrbImage, OrbSOMStatistic, OrbReplicate, OrbWhen, OrbPatternLinkStatistic>>;

// In the document the head comes first, then the statistics, then the aesthetics, then the positions. Attachments,
// visibilities, images and replicates go last, and no later add looks for them, save that what belongs to the head goes
// before the first attachment.
using AfterAesthetics = FamilyList<OrbX, OrbY, OrbZ, OrbPosition>;
using AfterStatistics = Joined<FamilyList<OrbStyleBy, OrbDash, OrbShape, OrbSize, OrbRotation, OrbColor, OrbOffset,
                                          OrbPattern, OrbTransparency, OrbLabeling, OrbSplit, OrbColorComponent>,
                               AfterAesthetics>;
using AfterBinStatistics = Joined<FamilyList<OrbSmoothStatistic>, AfterStatistics>;
// An extension does not look for a fixedWindowDensityStatistic.
using AfterExtensions =
    Joined<FamilyList<OrbAttach, OrbBinStatistic, OrbAggregateStatistic, OrbClusteringStatistic, OrbSOMStatistic,
                      OrbWhen, OrbCollectRowsStatistic, OrbDistributionStatistic, OrbGraphLayoutStatistic,
                      OrbLinkStatistic, OrbMapStatistic, OrbRegionStatistic, OrbSmoothStatistic, OrbSummaryStatistic,
                      OrbTagCloudStatistic, OrbTreeLayoutStatistic, OrbEvaluateStatistic,
                      OrbNearestNeighborDensityStatistic, OrbTukeyStatistic, OrbPatternLinkStatistic>,
           AfterStatistics>;
using AfterConditionalStyles = Joined<FamilyList<OrbFixedWindowDensityStatistic>, AfterExtensions>;

} // namespace

template <> const ElementDescription& orbchart::descriptionOf<CTElementType>() {
  return elementDescription<CTElementType, Attributes, Families>;
}

struct CTElementType::Children : Families {};

CTElementType::CTElementType(DOMElement* element) : OrbBaseElement(element), children_(new Children) {
  children_->load(*this);
}
CTElementType::CTElementType(DOMElement* element, const XMLCh* id) : CTElementType(element) { setId(id); }
CTElementType::~CTElementType() = default;

const XMLCh* CTElementType::getId() const { return id.get(*this); }
void CTElementType::setId(const XMLCh* value) { id.set(*this, value); }
void CTElementType::removeId() { id.remove(*this); }

OrbStyle* CTElementType::getStyle() const { return style.get(*this); }
void CTElementType::setStyle(const OrbStyle& target) { style.set(*this, target); }
void CTElementType::removeStyle() { style.remove(*this); }

const XMLCh* CTElementType::getName() const { return name.get(*this); }
void CTElementType::setName(const XMLCh* value) { name.set(*this, value); }
void CTElementType::removeName() { name.remove(*this); }

bool CTElementType::getDot() const { return dot.get(*this); }
void CTElementType::setDot(bool value) { dot.set(*this, value); }
void CTElementType::removeDot() { dot.remove(*this); }

CTElementType::ENUM_labelCollisionHandling CTElementType::getLabelCollisionHandling() const {
  return labelCollisionHandling.get(*this);
}
void CTElementType::setLabelCollisionHandling(ENUM_labelCollisionHandling value) {
  labelCollisionHandling.set(*this, value);
}
bool CTElementType::isLabelCollisionHandlingPresent() const { return labelCollisionHandling.isPresent(*this); }
void CTElementType::removeLabelCollisionHandling() { labelCollisionHandling.remove(*this); }

bool CTElementType::getShowCollidingLabels() const { return showCollidingLabels.get(*this); }
void CTElementType::setShowCollidingLabels(bool value) { showCollidingLabels.set(*this, value); }
void CTElementType::removeShowCollidingLabels() { showCollidingLabels.remove(*this); }

OrbCoordinates* CTElementType::getCoordinates() const { return coordinates.get(*this); }
void CTElementType::setCoordinates(const OrbCoordinates& target) { coordinates.set(*this, target); }
void CTElementType::removeCoordinates() { coordinates.remove(*this); }

CTElementType::ENUM_positionModifier CTElementType::getPositionModifier() const { return positionModifier.get(*this); }
void CTElementType::setPositionModifier(ENUM_positionModifier value) { positionModifier.set(*this, value); }
void CTElementType::removePositionModifier() { positionModifier.remove(*this); }

double CTElementType::getXLocation() const { return xLocation.get(*this); }
void CTElementType::setXLocation(double value) { xLocation.set(*this, value); }
void CTElementType::removeXLocation() { xLocation.remove(*this); }

double CTElementType::getYLocation() const { return yLocation.get(*this); }
void CTElementType::setYLocation(double value) { yLocation.set(*this, value); }
void CTElementType::removeYLocation() { yLocation.remove(*this); }

double CTElementType::getZLocation() const { return zLocation.get(*this); }
void CTElementType::setZLocation(double value) { zLocation.set(*this, value); }
void CTElementType::removeZLocation() { zLocation.remove(*this); }

int CTElementType::getZOrder() const { return zOrder.get(*this); }
void CTElementType::setZOrder(int value) { zOrder.set(*this, value); }
void CTElementType::removeZOrder() { zOrder.remove(*this); }

CTElementType::ENUM_clip CTElementType::getClip() const { return clip.get(*this); }
void CTElementType::setClip(ENUM_clip value) { clip.set(*this, value); }
void CTElementType::removeClip() { clip.remove(*this); }

OrbExtension* CTElementType::addExtension() { return children_->add<OrbExtension>(*this, AfterExtensions{}); }
std::vector<OrbExtension*> CTElementType::getExtensions() const { return children_->all<OrbExtension>(); }
unsigned int CTElementType::removeExtensions() { return children_->removeAll<OrbExtension>(*this); }

OrbConditionalStyle* CTElementType::addConditionalStyle(const XMLCh* when, const OrbStyle& style) {
  return children_->add<OrbConditionalStyle>(*this, AfterConditionalStyles{}, when, style);
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

OrbLabeling* CTElementType::addLabeling() { return children_->add<OrbLabeling>(*this, AfterAesthetics{}); }
const std::vector<OrbLabeling*>& CTElementType::getLabelings() const { return children_->live<OrbLabeling>(); }
unsigned int CTElementType::removeLabelings() { return children_->removeAll<OrbLabeling>(*this); }
void CTElementType::removeLabeling(OrbLabeling& labeling) {
  children_->removeOver<OrbLabeling>(*this, labeling.getImplementation());
}

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

OrbX* CTElementType::addX() { return children_->add<OrbX>(*this, atEnd); }
OrbX* CTElementType::getX() const { return children_->first<OrbX>(); }
unsigned int CTElementType::removeXs() { return children_->removeAll<OrbX>(*this); }

OrbY* CTElementType::addY() { return children_->add<OrbY>(*this, atEnd); }
OrbY* CTElementType::getY() const { return children_->first<OrbY>(); }
unsigned int CTElementType::removeYs() { return children_->removeAll<OrbY>(*this); }

OrbZ* CTElementType::addZ() { return children_->add<OrbZ>(*this, atEnd); }
OrbZ* CTElementType::getZ() const { return children_->first<OrbZ>(); }
unsigned int CTElementType::removeZs() { return children_->removeAll<OrbZ>(*this); }

OrbBinStatistic* CTElementType::addBinStatistic() {
  return children_->add<OrbBinStatistic>(*this, AfterBinStatistics{});
}
std::vector<OrbBinStatistic*> CTElementType::getBinStatistics() const { return children_->all<OrbBinStatistic>(); }
unsigned int CTElementType::removeBinStatistics() { return children_->removeAll<OrbBinStatistic>(*this); }

OrbAggregateStatistic* CTElementType::addAggregateStatistic() {
  return children_->add<OrbAggregateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbAggregateStatistic*> CTElementType::getAggregateStatistics() const {
  return children_->all<OrbAggregateStatistic>();
}
unsigned int CTElementType::removeAggregateStatistics() { return children_->removeAll<OrbAggregateStatistic>(*this); }

OrbClusteringStatistic* CTElementType::addClusteringStatistic() {
  return children_->add<OrbClusteringStatistic>(*this, AfterStatistics{});
}
std::vector<OrbClusteringStatistic*> CTElementType::getClusteringStatistics() const {
  return children_->all<OrbClusteringStatistic>();
}
unsigned int CTElementType::removeClusteringStatistics() { return children_->removeAll<OrbClusteringStatistic>(*this); }

OrbCollectRowsStatistic* CTElementType::addCollectRowsStatistic() {
  return children_->add<OrbCollectRowsStatistic>(*this, AfterStatistics{});
}
std::vector<OrbCollectRowsStatistic*> CTElementType::getCollectRowsStatistics() const {
  return children_->all<OrbCollectRowsStatistic>();
}
unsigned int CTElementType::removeCollectRowsStatistics() {
  return children_->removeAll<OrbCollectRowsStatistic>(*this);
}

OrbDistributionStatistic* CTElementType::addDistributionStatistic() {
  return children_->add<OrbDistributionStatistic>(*this, AfterStatistics{});
}
std::vector<OrbDistributionStatistic*> CTElementType::getDistributionStatistics() const {
  return children_->all<OrbDistributionStatistic>();
}
unsigned int CTElementType::removeDistributionStatistics() {
  return children_->removeAll<OrbDistributionStatistic>(*this);
}

OrbGraphLayoutStatistic* CTElementType::addGraphLayoutStatistic() {
  return children_->add<OrbGraphLayoutStatistic>(*this, AfterStatistics{});
}
std::vector<OrbGraphLayoutStatistic*> CTElementType::getGraphLayoutStatistics() const {
  return children_->all<OrbGraphLayoutStatistic>();
}
unsigned int CTElementType::removeGraphLayoutStatistics() {
  return children_->removeAll<OrbGraphLayoutStatistic>(*this);
}

OrbLinkStatistic* CTElementType::addLinkStatistic() {
  return children_->add<OrbLinkStatistic>(*this, AfterStatistics{});
}
std::vector<OrbLinkStatistic*> CTElementType::getLinkStatistics() const { return children_->all<OrbLinkStatistic>(); }
unsigned int CTElementType::removeLinkStatistics() { return children_->removeAll<OrbLinkStatistic>(*this); }

OrbMapStatistic* CTElementType::addMapStatistic(const XMLCh* mapFile) {
  return children_->add<OrbMapStatistic>(*this, AfterStatistics{}, mapFile);
}
std::vector<OrbMapStatistic*> CTElementType::getMapStatistics() const { return children_->all<OrbMapStatistic>(); }
unsigned int CTElementType::removeMapStatistics() { return children_->removeAll<OrbMapStatistic>(*this); }

OrbRegionStatistic* CTElementType::addRegionStatistic() {
  return children_->add<OrbRegionStatistic>(*this, AfterStatistics{});
}
std::vector<OrbRegionStatistic*> CTElementType::getRegionStatistics() const {
  return children_->all<OrbRegionStatistic>();
}
unsigned int CTElementType::removeRegionStatistics() { return children_->removeAll<OrbRegionStatistic>(*this); }

OrbSmoothStatistic* CTElementType::addSmoothStatistic() {
  return children_->add<OrbSmoothStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSmoothStatistic*> CTElementType::getSmoothStatistics() const {
  return children_->all<OrbSmoothStatistic>();
}
unsigned int CTElementType::removeSmoothStatistics() { return children_->removeAll<OrbSmoothStatistic>(*this); }

OrbSummaryStatistic* CTElementType::addSummaryStatistic() {
  return children_->add<OrbSummaryStatistic>(*this, AfterStatistics{});
}
std::vector<OrbSummaryStatistic*> CTElementType::getSummaryStatistics() const {
  return children_->all<OrbSummaryStatistic>();
}
unsigned int CTElementType::removeSummaryStatistics() { return children_->removeAll<OrbSummaryStatistic>(*this); }

OrbTagCloudStatistic* CTElementType::addTagCloudStatistic() {
  return children_->add<OrbTagCloudStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTagCloudStatistic*> CTElementType::getTagCloudStatistics() const {
  return children_->all<OrbTagCloudStatistic>();
}
unsigned int CTElementType::removeTagCloudStatistics() { return children_->removeAll<OrbTagCloudStatistic>(*this); }

OrbTreeLayoutStatistic* CTElementType::addTreeLayoutStatistic(const CTVariableType& /*itemVariable*/,
                                                              const CTVariableType& /*parent*/) {
  return children_->add<OrbTreeLayoutStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTreeLayoutStatistic*> CTElementType::getTreeLayoutStatistics() const {
  return children_->all<OrbTreeLayoutStatistic>();
}
unsigned int CTElementType::removeTreeLayoutStatistics() { return children_->removeAll<OrbTreeLayoutStatistic>(*this); }

OrbEvaluateStatistic* CTElementType::addEvaluateStatistic() {
  return children_->add<OrbEvaluateStatistic>(*this, AfterStatistics{});
}
std::vector<OrbEvaluateStatistic*> CTElementType::getEvaluateStatistics() const {
  return children_->all<OrbEvaluateStatistic>();
}
unsigned int CTElementType::removeEvaluateStatistics() { return children_->removeAll<OrbEvaluateStatistic>(*this); }

OrbFixedWindowDensityStatistic* CTElementType::addFixedWindowDensityStatistic() {
  return children_->add<OrbFixedWindowDensityStatistic>(*this, AfterStatistics{});
}
std::vector<OrbFixedWindowDensityStatistic*> CTElementType::getFixedWindowDensityStatistics() const {
  return children_->all<OrbFixedWindowDensityStatistic>();
}
unsigned int CTElementType::removeFixedWindowDensityStatistics() {
  return children_->removeAll<OrbFixedWindowDensityStatistic>(*this);
}

OrbNearestNeighborDensityStatistic* CTElementType::addNearestNeighborDensityStatistic() {
  return children_->add<OrbNearestNeighborDensityStatistic>(*this, AfterStatistics{});
}
std::vector<OrbNearestNeighborDensityStatistic*> CTElementType::getNearestNeighborDensityStatistics() const {
  return children_->all<OrbNearestNeighborDensityStatistic>();
}
unsigned int CTElementType::removeNearestNeighborDensityStatistics() {
  return children_->removeAll<OrbNearestNeighborDensityStatistic>(*this);
}

OrbTukeyStatistic* CTElementType::addTukeyStatistic() {
  return children_->add<OrbTukeyStatistic>(*this, AfterStatistics{});
}
std::vector<OrbTukeyStatistic*> CTElementType::getTukeyStatistics() const {
  return children_->all<OrbTukeyStatistic>();
}
unsigned int CTElementType::removeTukeyStatistics() { return children_->removeAll<OrbTukeyStatistic>(*this); }

OrbAttach* CTElementType::addAttach() { return children_->add<OrbAttach>(*this, atEnd); }
std::vector<OrbAttach*> CTElementType::getAttachs() const { return children_->all<OrbAttach>(); }
unsigned int CTElementType::removeAttach() { return children_->removeAll<OrbAttach>(*this); }

OrbVisibility* CTElementType::addVisibility() { return children_->add<OrbVisibility>(*this, atEnd); }
std::vector<OrbVisibility*> CTElementType::getVisibilitys() const { return children_->all<OrbVisibility>(); }
unsigned int CTElementType::removeVisibilitys() { return children_->removeAll<OrbVisibility>(*this); }

OrbImage* CTElementType::addImage() { return children_->add<OrbImage>(*this, atEnd); }
std::vector<OrbImage*> CTElementType::getImages() const { return children_->all<OrbImage>(); }
unsigned int CTElementType::removeImages() { return children_->removeAll<OrbImage>(*this); }

OrbSOMStatistic* CTElementType::addSOMStatistic() { return children_->add<OrbSOMStatistic>(*this, AfterStatistics{}); }
std::vector<OrbSOMStatistic*> CTElementType::getSOMStatistics() const { return children_->all<OrbSOMStatistic>(); }
unsigned int CTElementType::removeSOMStatistics() { return children_->removeAll<OrbSOMStatistic>(*this); }

OrbReplicate* CTElementType::addReplicate() { return children_->add<OrbReplicate>(*this, atEnd); }
std::vector<OrbReplicate*> CTElementType::getReplicates() const { return children_->all<OrbReplicate>(); }
unsigned int CTElementType::removeReplicates() { return children_->removeAll<OrbReplicate>(*this); }

OrbWhen* CTElementType::addWhen() { return children_->add<OrbWhen>(*this, AfterStatistics{}); }
std::vector<OrbWhen*> CTElementType::getWhens() const { return children_->all<OrbWhen>(); }
unsigned int CTElementType::removeWhens() { return children_->removeAll<OrbWhen>(*this); }

OrbPatternLinkStatistic* CTElementType::addPatternLinkStatistic() {
  return children_->add<OrbPatternLinkStatistic>(*this, AfterStatistics{});
}
std::vector<OrbPatternLinkStatistic*> CTElementType::getPatternLinkStatistics() const {
  return children_->all<OrbPatternLinkStatistic>();
}
unsigned int CTElementType::removePatternLinkStatistics() {
  return children_->removeAll<OrbPatternLinkStatistic>(*this);
}
