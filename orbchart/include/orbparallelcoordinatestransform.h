// Parallel coordinates, element `parallelCoordinatesTransform`.
#pragma once

#include "orbbaseelement.h"

/// Draws the dimensions as parallel axes. It has nothing but its id.
/// \ingroup coordinates
class ORBCHART_EXPORT OrbParallelCoordinatesTransform : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_parallelCoordinatesTransform[] = u"parallelCoordinatesTransform";
  static constexpr const XMLCh* elementName = _UTF_parallelCoordinatesTransform;

  explicit OrbParallelCoordinatesTransform(xercesc::DOMElement* element);
  ~OrbParallelCoordinatesTransform() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();
};
