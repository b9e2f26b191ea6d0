// What all graphic elements share.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTAesthetic;
class OrbAggregateStatistic;
class OrbAttach;
class OrbBinStatistic;
class OrbCollectRowsStatistic;
class OrbColor;
class OrbColorComponent;
class OrbConditionalStyle;
class OrbCoordinates;
class OrbDash;
class OrbEvaluateStatistic;
class OrbImage;
class OrbOffset;
class OrbPattern;
class OrbPosition;
class OrbReplicate;
class OrbRotation;
class OrbShape;
class OrbSize;
class OrbSplit;
class OrbStyle;
class OrbStyleBy;
class OrbSummaryStatistic;
class OrbTransparency;
class OrbVisibility;
class OrbWhen;
class OrbX;
class OrbY;
class OrbZ;

/// A graphic element: the mark that is drawn for the data of a graph.
///
/// The add operations keep the children in groups: conditional styles, then statistics and `when`, then aesthetics,
/// then `x`, `y`, `z` and `position`. Within a group a new child goes last, whatever its kind. `attach`, `visibility`,
/// `image` and `replicate` belong to no group and go last when they are added. What is added later goes behind them
/// unless it finds a child of a later group to go before; a conditional style counts the first `attach` among these. A
/// load takes any order and any number.
///
/// A removed child's id stays registered with the document.
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

  OrbBinStatistic* addBinStatistic();
  std::vector<OrbBinStatistic*> getBinStatistics() const;
  unsigned int removeBinStatistics();

  OrbAggregateStatistic* addAggregateStatistic();
  std::vector<OrbAggregateStatistic*> getAggregateStatistics() const;
  unsigned int removeAggregateStatistics();

  OrbCollectRowsStatistic* addCollectRowsStatistic();
  std::vector<OrbCollectRowsStatistic*> getCollectRowsStatistics() const;
  unsigned int removeCollectRowsStatistics();

  OrbSummaryStatistic* addSummaryStatistic();
  std::vector<OrbSummaryStatistic*> getSummaryStatistics() const;
  unsigned int removeSummaryStatistics();

  OrbEvaluateStatistic* addEvaluateStatistic();
  std::vector<OrbEvaluateStatistic*> getEvaluateStatistics() const;
  unsigned int removeEvaluateStatistics();

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

  OrbReplicate* addReplicate();
  std::vector<OrbReplicate*> getReplicates() const;
  unsigned int removeReplicates();

  OrbWhen* addWhen();
  std::vector<OrbWhen*> getWhens() const;
  unsigned int removeWhens();

protected:
  explicit CTElementType(xercesc::DOMElement* element);
  CTElementType(xercesc::DOMElement* element, const XMLCh* id);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
