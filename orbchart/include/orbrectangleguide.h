// A rectangle laid over a graph, element `rectangleGuide`.
#pragma once

#include "ctguidetype.h"

class OrbCoordinates;

/// A rectangle laid over a graph. Its coordinates are free text, never numbers.
/// \ingroup guides
class ORBCHART_EXPORT OrbRectangleGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_rectangleGuide[] = u"rectangleGuide";
  static constexpr const XMLCh* elementName = _UTF_rectangleGuide;

  explicit OrbRectangleGuide(xercesc::DOMElement* element);
  ~OrbRectangleGuide() override;

  /// Two opposite corners.
  const XMLCh* getX1() const;
  void setX1(const XMLCh* x1);
  bool isX1Present() const;
  void removeX1();

  const XMLCh* getX2() const;
  void setX2(const XMLCh* x2);
  bool isX2Present() const;
  void removeX2();

  const XMLCh* getY1() const;
  void setY1(const XMLCh* y1);
  bool isY1Present() const;
  void removeY1();

  const XMLCh* getY2() const;
  void setY2(const XMLCh* y2);
  bool isY2Present() const;
  void removeY2();

  /// The coordinate system that the guide is drawn in.
  OrbCoordinates* getCoordinates() const;
  void setCoordinates(const OrbCoordinates& coordinates);
  bool isCoordinatesPresent() const;
  void removeCoordinates();
};
