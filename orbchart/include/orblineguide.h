// A line laid over a graph, element `lineGuide`.
#pragma once

#include "ctguidetype.h"

class OrbCoordinates;

/// A line laid over a graph. Its coordinates are free text, never numbers.
/// \ingroup guides
class ORBCHART_EXPORT OrbLineGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_lineGuide[] = u"lineGuide";
  static constexpr const XMLCh* elementName = _UTF_lineGuide;

  static constexpr XMLCh _UTF_expandToFit[] = u"expandToFit";
  static constexpr XMLCh _UTF_z1[] = u"z1";
  static constexpr XMLCh _UTF_z2[] = u"z2";

  explicit OrbLineGuide(xercesc::DOMElement* element);
  ~OrbLineGuide() override;

  /// Where the line stands along the dimensions.
  const XMLCh* getX() const;
  void setX(const XMLCh* x);
  void removeX();

  const XMLCh* getY() const;
  void setY(const XMLCh* y);
  void removeY();

  const XMLCh* getZ() const;
  void setZ(const XMLCh* z);
  void removeZ();

  /// The ends of the line.
  const XMLCh* getX1() const;
  void setX1(const XMLCh* x1);
  void removeX1();

  const XMLCh* getX2() const;
  void setX2(const XMLCh* x2);
  void removeX2();

  const XMLCh* getY1() const;
  void setY1(const XMLCh* y1);
  void removeY1();

  const XMLCh* getY2() const;
  void setY2(const XMLCh* y2);
  void removeY2();

  /// Whether the space grows to hold the guide; false when absent.
  bool getExpandToFit() const;
  void setExpandToFit(bool expandToFit);
  bool isExpandToFitPresent() const;
  void removeExpandToFit();

  /// The coordinate system that the guide is drawn in.
  OrbCoordinates* getCoordinates() const;
  void setCoordinates(const OrbCoordinates& coordinates);
  bool isCoordinatesPresent() const;
  void removeCoordinates();

  /// The ends of the line in depth.
  const XMLCh* getZ1() const;
  void setZ1(const XMLCh* z1);
  bool isZ1Present() const;
  void removeZ1();

  const XMLCh* getZ2() const;
  void setZ2(const XMLCh* z2);
  bool isZ2Present() const;
  void removeZ2();
};
