// The control of rectangle guides, element `rectangleGuideController`.
#pragma once

#include "ctinteraction.h"

/// Lets the viewer add and move rectangle guides.
/// \ingroup interaction
class ORBCHART_EXPORT OrbRectangleGuideController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_rectangleGuideController[] = u"rectangleGuideController";
  static constexpr const XMLCh* elementName = _UTF_rectangleGuideController;

  explicit OrbRectangleGuideController(xercesc::DOMElement* element);
  ~OrbRectangleGuideController() override;

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();
};
