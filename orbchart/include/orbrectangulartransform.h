// A view of the rectangular space, element `rectangularTransform`.
#pragma once

#include "orbbaseelement.h"

/// A view of the rectangular space: from which angles and which distance it is seen, how it is scaled and how it is
/// shifted. The coordinates keep it ahead of an inset and behind a polar or transposing transform.
///
/// An absent number reads as 0.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbRectangularTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_rectangularTransform[] = u"rectangularTransform";
  static constexpr const XMLCh* elementName = _UTF_rectangularTransform;

  explicit OrbRectangularTransform(xercesc::DOMElement* element);
  ~OrbRectangularTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The three angles of the view.
  double getTheta() const;
  void setTheta(double theta);
  void removeTheta();

  double getPhi() const;
  void setPhi(double phi);
  void removePhi();

  double getZeta() const;
  void setZeta(double zeta);
  void removeZeta();

  /// The distance from which the space is viewed.
  double getDistance() const;
  void setDistance(double distance);
  void removeDistance();

  /// The distance of the projection.
  double getProjectionDistance() const;
  void setProjectionDistance(double projectionDistance);
  void removeProjectionDistance();

  /// The scales of the three dimensions.
  double getXscale() const;
  void setXscale(double xscale);
  void removeXscale();

  double getYscale() const;
  void setYscale(double yscale);
  void removeYscale();

  double getZscale() const;
  void setZscale(double zscale);
  void removeZscale();

  /// The shift of the view, to the side and up.
  double getDx() const;
  void setDx(double dx);
  void removeDx();

  double getDy() const;
  void setDy(double dy);
  void removeDy();
};
