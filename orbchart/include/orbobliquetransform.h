// An oblique projection, element `obliqueTransform`.
#pragma once

#include "orbbaseelement.h"

/// An oblique projection of the space.
///
/// An absent number reads as 0.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbObliqueTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_obliqueTransform[] = u"obliqueTransform";
  static constexpr const XMLCh* elementName = _UTF_obliqueTransform;

  explicit OrbObliqueTransform(xercesc::DOMElement* element);
  ~OrbObliqueTransform() override;

  /// The id. The setter does not register it, so no look-up finds the element by it, and an empty or null id leaves the
  /// old one standing.
  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The angle of the view.
  double getTheta() const;
  void setTheta(double theta);
  void removeTheta();

  /// The distance from which the space is viewed.
  double getDistance() const;
  void setDistance(double distance);
  void removeDistance();

  /// How much depth is shortened. The capital S is part of the name.
  double getForeShortening() const;
  void setForeShortening(double foreShortening);
  void removeForeShortening();

  /// The scales of two dimensions.
  double getXscale() const;
  void setXscale(double xscale);
  void removeXscale();

  double getYscale() const;
  void setYscale(double yscale);
  void removeYscale();

  /// The shift of the view, to the side and up.
  double getDx() const;
  void setDx(double dx);
  void removeDx();

  double getDy() const;
  void setDy(double dy);
  void removeDy();
};
