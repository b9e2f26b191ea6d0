// An inset rectangle, element `insetTransform`.
#pragma once

#include "orbbaseelement.h"

/// Moves the graph into an inset rectangle, given by its bounds along each dimension.
///
/// An absent number reads as 0.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbInsetTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_insetTransform[] = u"insetTransform";
  static constexpr const XMLCh* elementName = _UTF_insetTransform;

  explicit OrbInsetTransform(xercesc::DOMElement* element);
  ~OrbInsetTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The lower bounds, in the attributes `x-min`, `y-min` and `z-min`.
  double getX_min() const;
  void setX_min(double xMin);
  void removeX_min();

  double getY_min() const;
  void setY_min(double yMin);
  void removeY_min();

  double getZ_min() const;
  void setZ_min(double zMin);
  void removeZ_min();

  /// The upper bounds, in the attributes `x-max`, `y-max` and `z-max`.
  double getX_max() const;
  void setX_max(double xMax);
  void removeX_max();

  double getY_max() const;
  void setY_max(double yMax);
  void removeY_max();

  double getZ_max() const;
  void setZ_max(double zMax);
  void removeZ_max();
};
