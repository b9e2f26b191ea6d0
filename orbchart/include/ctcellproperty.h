// What the properties of chosen cells share.
#pragma once

#include "orbbaseelement.h"

class CTElementType;
class OrbGraph;
class OrbLabeling;
class OrbMajorTicks;

/// One property that OrbSetCellProperties sets, and what it is set on.
/// \ingroup graph
class ORBCHART_EXPORT CTCellProperty : public OrbBaseElement {
public:
  ~CTCellProperty() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// What the property is set on: a graphic element, a labeling, a graph or major ticks. Each getter looks for one kind
  /// and is null for a target of another. An edge can be written and reads as null.
  CTElementType* getElementTarget() const;
  OrbLabeling* getLabelingTarget() const;
  OrbGraph* getGraphTarget() const;
  OrbMajorTicks* getMajorTicksTarget() const;
  void setTarget(const CTElementType& element);
  void setTarget(const OrbLabeling& labeling);
  void setTarget(const OrbGraph& graph);
  void setTarget(const OrbMajorTicks& majorTicks);
  bool isTargetPresent() const;
  void removeTarget();

protected:
  explicit CTCellProperty(xercesc::DOMElement* element);
};
