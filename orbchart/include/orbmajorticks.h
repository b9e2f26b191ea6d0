// The major ticks of an axis, element `majorTicks`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbFormat;
class OrbGridline;
class OrbLabel;
class OrbStyle;

/// The major ticks of an axis with their labels. A load takes a label and a format side by side; then neither can be
/// added.
/// \ingroup guides
class ORBCHART_EXPORT OrbMajorTicks : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_majorTicks[] = u"majorTicks";
  static constexpr const XMLCh* elementName = _UTF_majorTicks;

  static constexpr XMLCh _UTF_tickFrameStyle[] = u"tickFrameStyle";
  static constexpr XMLCh _UTF_deltaUnit[] = u"deltaUnit";
  static constexpr XMLCh OrbMajorTicks_second[] = u"second";
  static constexpr XMLCh OrbMajorTicks_day[] = u"day";

  enum ENUM_position : int {
    position_inside = 0,
    position_outside = 1,
    position_cross = 2,
  };

  enum ENUM_deltaUnit : int {
    deltaUnit_second = 0,
    deltaUnit_minute = 1,
    deltaUnit_hour = 2,
    deltaUnit_day = 3,
    deltaUnit_week = 4,
    deltaUnit_month = 5,
    deltaUnit_year = 6,
  };

  explicit OrbMajorTicks(xercesc::DOMElement* element);
  ~OrbMajorTicks() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The style of the frames of the tick labels.
  OrbStyle* getTickFrameStyle() const;
  void setTickFrameStyle(const OrbStyle& style);
  void removeTickFrameStyle();

  /// The angle of the tick labels; 0.0 when absent.
  double getLabelAngle() const;
  void setLabelAngle(double labelAngle);
  void removeLabelAngle();

  /// Whether the tick labels stand in two rows by turns; false when absent.
  bool getStagger() const;
  void setStagger(bool stagger);
  void removeStagger();

  /// Every how many ticks there is a label; 0 when absent.
  unsigned int getLabelFrequency() const;
  void setLabelFrequency(unsigned int labelFrequency);
  void removeLabelFrequency();

  /// The distance between ticks, a whole number or any other; 0.0 when absent.
  double getDelta() const;
  void setDelta(double delta);
  void setDelta(unsigned int delta);
  void removeDelta();

  /// The value from which the ticks are counted: free text, or a number as text.
  const XMLCh* getBase() const;
  void setBase(const XMLCh* base);
  void setBase(double base);
  void removeBase();

  /// Where the marks stand; "inside" when absent.
  ENUM_position getPosition() const;
  void setPosition(ENUM_position position);
  void removePosition();

  /// The style of the marks.
  OrbStyle* getMarkStyle() const;
  void setMarkStyle(const OrbStyle& style);
  void removeMarkStyle();

  /// The length of the marks: free text, such as "5%", or a number as text.
  const XMLCh* getLength() const;
  void setLength(const XMLCh* length);
  void setLength(double length);
  void removeLength();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The unit of the distance between ticks of dates and times; "second" when absent.
  ENUM_deltaUnit getDeltaUnit() const;
  void setDeltaUnit(ENUM_deltaUnit deltaUnit);
  void removeDeltaUnit();

  /// The grid line, at most one. A second add raises "Can not add a Gridline to a MajorTicks because 1 Gridline(s)
  /// already exist(s)." with the number that there is. A remove takes its id away.
  OrbGridline* addGridline();
  OrbGridline* getGridline() const;
  unsigned int removeGridlines();

  /// The label of the ticks, at most one and none beside a format. An add beside one of the two raises
  /// "Can not add a Label to a MajorTicks because 1 Label(s) already exist(s).", or the same with "1 Format(s)", and
  /// with the number that there is.
  OrbLabel* addLabel();
  std::vector<OrbLabel*> getLabels() const;
  unsigned int removeLabels();

  /// How the values are printed, at most one and none beside a label. An add beside one of the two raises
  /// "Can not add a Format to a MajorTicks because 1 Label(s) already exist(s).", or the same with "1 Format(s)", and
  /// with the number that there is.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
