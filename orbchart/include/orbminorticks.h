// The minor ticks of an axis, element `minorTicks`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbGridline;
class OrbStyle;

/// The minor ticks of an axis, between the major ones.
/// \ingroup guides
class ORBCHART_EXPORT OrbMinorTicks : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_minorTicks[] = u"minorTicks";
  static constexpr const XMLCh* elementName = _UTF_minorTicks;

  enum ENUM_position : int {
    position_inside = 0,
    position_outside = 1,
    position_cross = 2,
  };

  explicit OrbMinorTicks(xercesc::DOMElement* element);
  ~OrbMinorTicks() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

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

  /// How many ticks stand between two major ones; 0 when absent.
  unsigned int getNumber() const;
  void setNumber(unsigned int number);
  void removeNumber();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The grid line, at most one. A second add raises "Can not add a Gridline to a MinorTicks because 1 Gridline(s)
  /// already exist(s)." with the number that there is. A remove takes its id away.
  OrbGridline* addGridline();
  OrbGridline* getGridline() const;
  unsigned int removeGridlines();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
