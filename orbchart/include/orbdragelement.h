// The dragging of a graphic element, element `dragElement`.
#pragma once

#include "ctinteraction.h"

class CTElementType;

/// Lets the viewer drag the marks of a graphic element.
/// \ingroup interaction
class ORBCHART_EXPORT OrbDragElement : public CTInteraction {
public:
  static constexpr XMLCh _UTF_dragElement[] = u"dragElement";
  static constexpr const XMLCh* elementName = _UTF_dragElement;

  explicit OrbDragElement(xercesc::DOMElement* element);
  OrbDragElement(xercesc::DOMElement* element, const CTElementType& target);
  ~OrbDragElement() override;

  /// The graphic element: a line, point, interval, polygon, area, schema or path, in this order, else null. An edge can
  /// be written and reads as null.
  CTElementType* getTarget() const;
  void setTarget(const CTElementType& target);
  bool isTargetPresent() const;
  void removeTarget();
};
