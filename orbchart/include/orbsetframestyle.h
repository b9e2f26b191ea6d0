// The style of the frame of chosen cells, element `setFrameStyle`.
#pragma once

#include "ctcellproperty.h"

class OrbStyle;

/// Sets the style of the frame of the chosen cells.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetFrameStyle : public CTCellProperty {
public:
  static constexpr XMLCh _UTF_setFrameStyle[] = u"setFrameStyle";
  static constexpr const XMLCh* elementName = _UTF_setFrameStyle;

  explicit OrbSetFrameStyle(xercesc::DOMElement* element);
  ~OrbSetFrameStyle() override;

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();
};
