// One parameter of the transform of an axis, element `axisTransformParameter`.
#pragma once

#include "orbbaseelement.h"

/// One parameter of the transform of an axis: a name and a value.
/// \ingroup guides
class ORBCHART_EXPORT OrbAxisTransformParameter : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_axisTransformParameter[] = u"axisTransformParameter";
  static constexpr const XMLCh* elementName = _UTF_axisTransformParameter;

  explicit OrbAxisTransformParameter(xercesc::DOMElement* element);
  ~OrbAxisTransformParameter() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The name and the value, free text.
  const XMLCh* getParameterName() const;
  void setParameterName(const XMLCh* parameterName);
  void removeParameterName();

  const XMLCh* getParameterValue() const;
  void setParameterValue(const XMLCh* parameterValue);
  void removeParameterValue();
};
