// A point laid over a graph, element `pointGuide`.
#pragma once

#include "ctguidetype.h"

class OrbCoordinates;

/// A point laid over a graph. Its coordinates are free text, never numbers.
/// \ingroup guides
class ORBCHART_EXPORT OrbPointGuide : public CTGuideType {
public:
  static constexpr XMLCh _UTF_pointGuide[] = u"pointGuide";
  static constexpr const XMLCh* elementName = _UTF_pointGuide;

  explicit OrbPointGuide(xercesc::DOMElement* element);
  ~OrbPointGuide() override;

  /// Where the point lies.
  const XMLCh* getX() const;
  void setX(const XMLCh* x);
  void removeX();

  const XMLCh* getY() const;
  void setY(const XMLCh* y);
  void removeY();

  const XMLCh* getZ() const;
  void setZ(const XMLCh* z);
  void removeZ();

  /// The coordinate system that the guide is drawn in.
  OrbCoordinates* getCoordinates() const;
  void setCoordinates(const OrbCoordinates& coordinates);
  bool isCoordinatesPresent() const;
  void removeCoordinates();
};
