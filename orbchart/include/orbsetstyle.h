// The style of chosen cells, element `setStyle`.
#pragma once

#include "ctcellproperty.h"

class OrbStyle;

/// Sets the style of the chosen cells.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetStyle : public CTCellProperty {
public:
  static constexpr XMLCh _UTF_setStyle[] = u"setStyle";
  static constexpr const XMLCh* elementName = _UTF_setStyle;

  explicit OrbSetStyle(xercesc::DOMElement* element);
  ~OrbSetStyle() override;

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();
};
