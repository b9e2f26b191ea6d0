// A function along one dimension, element `functionalTransform`.
#pragma once

#include "orbbaseelement.h"

/// Applies a function along one dimension.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbFunctionalTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_functionalTransform[] = u"functionalTransform";
  static constexpr const XMLCh* elementName = _UTF_functionalTransform;

  enum ENUM_dimension : int {
    dimension_x = 0,
    dimension_y = 1,
    dimension_z = 2,
  };

  enum ENUM_method : int {
    method_cosine = 0,
    method_log = 1,
    method_power = 2,
  };

  explicit OrbFunctionalTransform(xercesc::DOMElement* element);
  ~OrbFunctionalTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The dimension; "x" when absent.
  ENUM_dimension getDimension() const;
  void setDimension(ENUM_dimension dimension);
  void removeDimension();

  /// The function; "cosine" when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  void removeMethod();

  /// The base of the function; 0 when absent. The library ties it to no method.
  double getBase() const;
  void setBase(double base);
  void removeBase();
};
