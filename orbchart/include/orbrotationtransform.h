// A rotation of the space, element `rotationTransform`.
#pragma once

#include "orbbaseelement.h"

/// Rotates the space by an angle about one dimension.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbRotationTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_rotationTransform[] = u"rotationTransform";
  static constexpr const XMLCh* elementName = _UTF_rotationTransform;

  enum ENUM_dimension : int {
    dimension_unset = 0,
    dimension_x = 1,
    dimension_y = 2,
    dimension_z = 3,
    dimension_theta = 4,
    dimension_r = 5,
    dimension_phi = 6,
  };

  explicit OrbRotationTransform(xercesc::DOMElement* element);
  ~OrbRotationTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The dimension; 0 when absent. It is numbered from 1, unlike that of a reflection.
  ENUM_dimension getDimension() const;
  void setDimension(ENUM_dimension dimension);
  void removeDimension();

  /// The angle; 0 when absent.
  double getAngle() const;
  void setAngle(double angle);
  void removeAngle();
};
