// One axis of a dimension or of a facet level, element `axis`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAxisTransformParameter;
class OrbLabel;
class OrbMajorTicks;
class OrbMinorTicks;
class OrbStyle;

/// One axis of a dimension or of a facet level: its label, its ticks and the parameters of its transform.
/// \ingroup guides
class ORBCHART_EXPORT OrbAxis : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_axis[] = u"axis";
  static constexpr const XMLCh* elementName = _UTF_axis;

  enum ENUM_transform : int {
    transform_linear = 0,
    transform_percent = 1,
    transform_unset = 2,
  };

  enum ENUM_repeat : int {
    repeat_never = 0,
    repeat_always = 1,
  };

  explicit OrbAxis(xercesc::DOMElement* element);
  ~OrbAxis() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// Whether the axis stands on the other side; false when absent.
  bool getOpposite() const;
  void setOpposite(bool opposite);
  void removeOpposite();

  /// How the values are shown; 2, the number of no keyword, when absent, though the keywords begin at 0.
  ENUM_transform getTransform() const;
  void setTransform(ENUM_transform transform);
  void removeTransform();

  /// The most room that the axis takes, free text.
  const XMLCh* getMaxSize() const;
  void setMaxSize(const XMLCh* maxSize);
  void removeMaxSize();

  /// Whether the axis is drawn once or in every facet; "never" when absent.
  ENUM_repeat getRepeat() const;
  void setRepeat(ENUM_repeat repeat);
  void removeRepeat();

  /// Whether the labels of axes are combined; false when absent.
  bool getCombineAxisLabels() const;
  void setCombineAxisLabels(bool combineAxisLabels);
  void removeCombineAxisLabels();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The label, at most one. A second add raises "Can not add a Label to a Axis because 1 Label(s) already exist(s)."
  /// with the number that there is.
  OrbLabel* addLabel();
  OrbLabel* getLabel() const;
  unsigned int removeLabels();

  /// The major ticks, at most one. A second add raises "Can not add a MajorTicks to a Axis because 1 MajorTicks(s)
  /// already exist(s)." with the number that there is.
  OrbMajorTicks* addMajorTicks();
  OrbMajorTicks* getMajorTicks() const;
  unsigned int removeMajorTickss();

  /// The minor ticks, at most one. A second add raises "Can not add a MinorTicks to a Axis because 1 MinorTicks(s)
  /// already exist(s)." with the number that there is.
  OrbMinorTicks* addMinorTicks();
  OrbMinorTicks* getMinorTicks() const;
  unsigned int removeMinorTickss();

  /// The parameters of the transform.
  OrbAxisTransformParameter* addAxisTransformParameter();
  std::vector<OrbAxisTransformParameter*> getAxisTransformParameters() const;
  unsigned int removeAxisTransformParameters();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
