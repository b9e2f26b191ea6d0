// What all graphic elements share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTAesthetic;
class CTVariableType;
class OrbAggregateStatistic;
class OrbAttach;
class OrbBinStatistic;
class OrbClusteringStatistic;
class OrbCollectRowsStatistic;
class OrbColor;
class OrbColorComponent;
class OrbConditionalStyle;
class OrbCoordinates;
class OrbDash;
class OrbDistributionStatistic;
class OrbEvaluateStatistic;
class OrbExtension;
class OrbFixedWindowDensityStatistic;
class OrbGraphLayoutStatistic;
class OrbImage;
class OrbLabeling;
class OrbLinkStatistic;
class OrbMapStatistic;
class OrbNearestNeighborDensityStatistic;
class OrbOffset;
class OrbPattern;
class OrbPatternLinkStatistic;
class OrbPosition;
class OrbRegionStatistic;
class OrbReplicate;
class OrbRotation;
class OrbSOMStatistic;
class OrbShape;
class OrbSize;
class OrbSmoothStatistic;
class OrbSplit;
class OrbStyle;
class OrbStyleBy;
class OrbSummaryStatistic;
class OrbTagCloudStatistic;
class OrbTransparency;
class OrbTreeLayoutStatistic;
class OrbTukeyStatistic;
class OrbVisibility;
class OrbWhen;
class OrbX;
class OrbY;
class OrbZ;

/// A graphic element: the mark that is drawn for the data of a graph.
///
/// The add operations keep the children in groups: extensions and conditional styles, then statistics and `when`, then
/// aesthetics and labelings, then `x`, `y`, `z` and `position`. Within a group a new child goes last, whatever its
/// kind. `attach`, `visibility`, `image` and `replicate` belong to no group and go last when they are added. What is
/// added later goes behind them unless it finds a child of a later group to go before; the first group counts the first
/// `attach` among these. A load takes any order and any number.
///
/// A removed child's id stays registered with the document.
/// \ingroup elements
class ORBCHART_EXPORT CTElementType : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_positionModifier_pile[] = u"pile";
  static constexpr XMLCh _UTF_positionModifier_jitterJointUniform[] = u"jitterJointUniform";
  static constexpr XMLCh _UTF_positionModifier_jitterConditionalUniform[] = u"jitterConditionalUniform";
  static constexpr XMLCh _UTF_positionModifier_jitterJointNormal[] = u"jitterJointNormal";
  static constexpr XMLCh _UTF_positionModifier_jitterConditionalNormal[] = u"jitterConditionalNormal";
  static constexpr XMLCh _UTF_positionModifier_centerStacked[] = u"centerStacked";
  static constexpr XMLCh _UTF_clip_cell[] = u"cell";

  enum ENUM_labelCollisionHandling : int {
    labelCollisionHandling_unset = 0,
    labelCollisionHandling_none = 1,
    labelCollisionHandling_normal = 2,
    labelCollisionHandling_fast = 3,
    labelCollisionHandling_quality = 4,
    labelCollisionHandling_extreme = 5,
    labelCollisionHandling_basic = 6,
    labelCollisionHandling_outside = 7,
    labelCollisionHandling_inside = 8,
  };

  enum ENUM_positionModifier : int {
    positionModifier_unset = 0,
    positionModifier_none = 1,
    positionModifier_center = 2,
    positionModifier_stack = 3,
    positionModifier_stackInterpolating = 4,
    positionModifier_setMissingsToZero = 5,
    positionModifier_minusIntersection = 6,
    positionModifier_dodge = 7,
    positionModifier_pile = 8,
    positionModifier_jitterJointUniform = 9,
    positionModifier_jitterConditionalUniform = 10,
    positionModifier_jitterJointNormal = 11,
    positionModifier_jitterConditionalNormal = 12,
    positionModifier_centerStacked = 13,
  };

  enum ENUM_clip : int {
    clip_none = 0,
    clip_cell = 1,
    clip_domain = 2,
  };

  ~CTElementType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  void removeName();

  /// False when absent.
  bool getDot() const;
  void setDot(bool dot);
  void removeDot();

  /// What is done about labels that collide; 0 when absent.
  ENUM_labelCollisionHandling getLabelCollisionHandling() const;
  void setLabelCollisionHandling(ENUM_labelCollisionHandling labelCollisionHandling);
  bool isLabelCollisionHandlingPresent() const;
  void removeLabelCollisionHandling();

  /// Whether labels that still collide are shown; false when absent.
  bool getShowCollidingLabels() const;
  void setShowCollidingLabels(bool showCollidingLabels);
  void removeShowCollidingLabels();

  /// The coordinate system that the element is drawn in.
  OrbCoordinates* getCoordinates() const;
  void setCoordinates(const OrbCoordinates& coordinates);
  void removeCoordinates();

  /// How marks at the same place are moved; 0 when absent.
  ENUM_positionModifier getPositionModifier() const;
  void setPositionModifier(ENUM_positionModifier positionModifier);
  void removePositionModifier();

  /// The place of the element on each axis; 0.0 when absent.
  double getXLocation() const;
  void setXLocation(double xLocation);
  void removeXLocation();

  double getYLocation() const;
  void setYLocation(double yLocation);
  void removeYLocation();

  double getZLocation() const;
  void setZLocation(double zLocation);
  void removeZLocation();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// Where the drawing is cut; "none" when absent.
  ENUM_clip getClip() const;
  void setClip(ENUM_clip clip);
  void removeClip();

  /// Free attributes of the host. A new one does not look for a fixedWindowDensityStatistic: where that is all that
  /// comes later, it goes after it.
  OrbExtension* addExtension();
  std::vector<OrbExtension*> getExtensions() const;
  unsigned int removeExtensions();

  /// The styles of the data for which a condition holds: `when` and the style are written to the new child.
  OrbConditionalStyle* addConditionalStyle(const XMLCh* when, const OrbStyle& style);
  std::vector<OrbConditionalStyle*> getConditionalStyles() const;
  unsigned int removeConditionalStyles();

  /// The styles chosen by a variable. A new one goes before the target as well, when that is a child of this element; a
  /// target of another element and null say nothing. The child keeps no trace of the target.
  OrbStyleBy* addStyleBy(CTAesthetic* target);
  std::vector<OrbStyleBy*> getStyleBys() const;
  unsigned int removeStyleBys();
  /// Removes the one at a position, counted from 0; false past the end.
  bool removeStyleBy(unsigned long index);

  OrbDash* addDash();
  std::vector<OrbDash*> getDashs() const;
  unsigned int removeDashs();
  /// Removes the one at a position, counted from 0; false past the end.
  bool removeDash(unsigned long index);

  OrbShape* addShape();
  std::vector<OrbShape*> getShapes() const;
  unsigned int removeShapes();
  /// Removes the one at a position, counted from 0; false past the end.
  bool removeShape(unsigned long index);

  OrbSize* addSize();
  std::vector<OrbSize*> getSizes() const;
  unsigned int removeSizes();

  OrbRotation* addRotation();
  std::vector<OrbRotation*> getRotations() const;
  unsigned int removeRotations();

  OrbColor* addColor();
  std::vector<OrbColor*> getColors() const;
  unsigned int removeColors();
  /// Removes the one at a position, counted from 0; false past the end.
  bool removeColor(unsigned long index);

  OrbOffset* addOffset();
  std::vector<OrbOffset*> getOffsets() const;
  unsigned int removeOffsets();

  OrbPattern* addPattern();
  std::vector<OrbPattern*> getPatterns() const;
  unsigned int removePatterns();
  /// Removes the one at a position, counted from 0; false past the end.
  bool removePattern(unsigned long index);

  OrbTransparency* addTransparency();
  std::vector<OrbTransparency*> getTransparencys() const;
  unsigned int removeTransparencys();

  /// The labels. The getter gives the family itself and no copy: it sees what is added later. Removing a single one
  /// looks for the child over the same element, and does nothing when there is none.
  OrbLabeling* addLabeling();
  const std::vector<OrbLabeling*>& getLabelings() const;
  unsigned int removeLabelings();
  void removeLabeling(OrbLabeling& labeling);

  OrbSplit* addSplit();
  std::vector<OrbSplit*> getSplits() const;
  unsigned int removeSplits();

  OrbColorComponent* addColorComponent();
  std::vector<OrbColorComponent*> getColorComponents() const;
  unsigned int removeColorComponents();

  OrbPosition* addPosition();
  std::vector<OrbPosition*> getPositions() const;
  unsigned int removePositions();

  /// The variable on the first coordinate, at most one. A second add raises "Can not add a X to a ElementType because 1
  /// X(s) already exist(s)." with the number that there is.
  OrbX* addX();
  OrbX* getX() const;
  unsigned int removeXs();

  /// The variable on the second coordinate, at most one. A second add raises "Can not add a Y to a ElementType because
  /// 1 Y(s) already exist(s)." with the number that there is.
  OrbY* addY();
  OrbY* getY() const;
  unsigned int removeYs();

  /// The variable on the third coordinate, at most one. A second add raises "Can not add a Z to a ElementType because 1
  /// Z(s) already exist(s)." with the number that there is.
  OrbZ* addZ();
  OrbZ* getZ() const;
  unsigned int removeZs();

  /// The sorting of rows into bins. Alone among the statistics a new one goes before the smooth statistics, too.
  OrbBinStatistic* addBinStatistic();
  std::vector<OrbBinStatistic*> getBinStatistics() const;
  unsigned int removeBinStatistics();

  OrbAggregateStatistic* addAggregateStatistic();
  std::vector<OrbAggregateStatistic*> getAggregateStatistics() const;
  unsigned int removeAggregateStatistics();

  OrbClusteringStatistic* addClusteringStatistic();
  std::vector<OrbClusteringStatistic*> getClusteringStatistics() const;
  unsigned int removeClusteringStatistics();

  OrbCollectRowsStatistic* addCollectRowsStatistic();
  std::vector<OrbCollectRowsStatistic*> getCollectRowsStatistics() const;
  unsigned int removeCollectRowsStatistics();

  OrbDistributionStatistic* addDistributionStatistic();
  std::vector<OrbDistributionStatistic*> getDistributionStatistics() const;
  unsigned int removeDistributionStatistics();

  OrbGraphLayoutStatistic* addGraphLayoutStatistic();
  std::vector<OrbGraphLayoutStatistic*> getGraphLayoutStatistics() const;
  unsigned int removeGraphLayoutStatistics();

  OrbLinkStatistic* addLinkStatistic();
  std::vector<OrbLinkStatistic*> getLinkStatistics() const;
  unsigned int removeLinkStatistics();

  /// The statistics that join the rows to the features of a map; the argument is the file of the map.
  OrbMapStatistic* addMapStatistic(const XMLCh* mapFile);
  std::vector<OrbMapStatistic*> getMapStatistics() const;
  unsigned int removeMapStatistics();

  OrbRegionStatistic* addRegionStatistic();
  std::vector<OrbRegionStatistic*> getRegionStatistics() const;
  unsigned int removeRegionStatistics();

  OrbSmoothStatistic* addSmoothStatistic();
  std::vector<OrbSmoothStatistic*> getSmoothStatistics() const;
  unsigned int removeSmoothStatistics();

  OrbSummaryStatistic* addSummaryStatistic();
  std::vector<OrbSummaryStatistic*> getSummaryStatistics() const;
  unsigned int removeSummaryStatistics();

  OrbTagCloudStatistic* addTagCloudStatistic();
  std::vector<OrbTagCloudStatistic*> getTagCloudStatistics() const;
  unsigned int removeTagCloudStatistics();

  /// The layouts of a tree. The two variables are not written: the host sets them on the new child.
  OrbTreeLayoutStatistic* addTreeLayoutStatistic(const CTVariableType& itemVariable, const CTVariableType& parent);
  std::vector<OrbTreeLayoutStatistic*> getTreeLayoutStatistics() const;
  unsigned int removeTreeLayoutStatistics();

  OrbEvaluateStatistic* addEvaluateStatistic();
  std::vector<OrbEvaluateStatistic*> getEvaluateStatistics() const;
  unsigned int removeEvaluateStatistics();

  OrbFixedWindowDensityStatistic* addFixedWindowDensityStatistic();
  std::vector<OrbFixedWindowDensityStatistic*> getFixedWindowDensityStatistics() const;
  unsigned int removeFixedWindowDensityStatistics();

  OrbNearestNeighborDensityStatistic* addNearestNeighborDensityStatistic();
  std::vector<OrbNearestNeighborDensityStatistic*> getNearestNeighborDensityStatistics() const;
  unsigned int removeNearestNeighborDensityStatistics();

  OrbTukeyStatistic* addTukeyStatistic();
  std::vector<OrbTukeyStatistic*> getTukeyStatistics() const;
  unsigned int removeTukeyStatistics();

  /// The targets that the element is tied to. The name of the operation that removes them all has no plural.
  OrbAttach* addAttach();
  std::vector<OrbAttach*> getAttachs() const;
  unsigned int removeAttach();

  OrbVisibility* addVisibility();
  std::vector<OrbVisibility*> getVisibilitys() const;
  unsigned int removeVisibilitys();

  OrbImage* addImage();
  std::vector<OrbImage*> getImages() const;
  unsigned int removeImages();

  OrbSOMStatistic* addSOMStatistic();
  std::vector<OrbSOMStatistic*> getSOMStatistics() const;
  unsigned int removeSOMStatistics();

  OrbReplicate* addReplicate();
  std::vector<OrbReplicate*> getReplicates() const;
  unsigned int removeReplicates();

  OrbWhen* addWhen();
  std::vector<OrbWhen*> getWhens() const;
  unsigned int removeWhens();

  OrbPatternLinkStatistic* addPatternLinkStatistic();
  std::vector<OrbPatternLinkStatistic*> getPatternLinkStatistics() const;
  unsigned int removePatternLinkStatistics();

protected:
  explicit CTElementType(xercesc::DOMElement* element);
  CTElementType(xercesc::DOMElement* element, const XMLCh* id);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
