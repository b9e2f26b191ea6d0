// A magnifying lens, element `fishEyeTransform`.
#pragma once

#include "orbbaseelement.h"

/// A magnifying lens at a point of the space.
///
/// An absent number reads as 0.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbFishEyeTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_fishEyeTransform[] = u"fishEyeTransform";
  static constexpr const XMLCh* elementName = _UTF_fishEyeTransform;

  static constexpr XMLCh _UTF_affectsX[] = u"affectsX";
  static constexpr XMLCh _UTF_affectsY[] = u"affectsY";

  explicit OrbFishEyeTransform(xercesc::DOMElement* element);
  ~OrbFishEyeTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// How strongly the lens magnifies.
  double getMagnification() const;
  void setMagnification(double magnification);
  void removeMagnification();

  /// How far the lens reaches.
  double getRadius() const;
  void setRadius(double radius);
  void removeRadius();

  /// The point at which the lens is held.
  double getX() const;
  void setX(double x);
  void removeX();

  double getY() const;
  void setY(double y);
  void removeY();

  /// Whether the lens works along x; false when absent.
  bool getAffectsX() const;
  void setAffectsX(bool affectsX);
  bool isAffectsXPresent() const;
  void removeAffectsX();

  /// Whether the lens works along y; false when absent.
  bool getAffectsY() const;
  void setAffectsY(bool affectsY);
  bool isAffectsYPresent() const;
  void removeAffectsY();
};
