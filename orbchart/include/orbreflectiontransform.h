// A reflection, element `reflectionTransform`.
#pragma once

#include "orbbaseelement.h"

/// Reflects the space along one dimension.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbReflectionTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_reflectionTransform[] = u"reflectionTransform";
  static constexpr const XMLCh* elementName = _UTF_reflectionTransform;

  enum ENUM_dimension : int {
    dimension_x = 0,
    dimension_y = 1,
    dimension_z = 2,
  };

  explicit OrbReflectionTransform(xercesc::DOMElement* element);
  ~OrbReflectionTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The dimension; "x" when absent. It is numbered from 0, unlike that of a rotation.
  ENUM_dimension getDimension() const;
  void setDimension(ENUM_dimension dimension);
  void removeDimension();

  /// Whether the reflection alternates; false when absent.
  bool getAlternating() const;
  void setAlternating(bool alternating);
  void removeAlternating();
};
