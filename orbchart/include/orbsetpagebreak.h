// A page break at chosen cells, element `setPageBreak`.
#pragma once

#include "ctcellproperty.h"

/// Sets a page break at the chosen cells.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetPageBreak : public CTCellProperty {
public:
  static constexpr XMLCh _UTF_setPageBreak[] = u"setPageBreak";
  static constexpr const XMLCh* elementName = _UTF_setPageBreak;

  static constexpr XMLCh _UTF_type_below[] = u"below";
  static constexpr XMLCh _UTF_type_keepTogetherTop[] = u"keepTogetherTop";
  static constexpr XMLCh _UTF_type_keepTogetherLeft[] = u"keepTogetherLeft";

  enum ENUM_type : int {
    type_unset = 0,
    type_below = 1,
    type_right = 2,
    type_keepTogetherTop = 3,
    type_keepTogetherLeft = 4,
  };

  explicit OrbSetPageBreak(xercesc::DOMElement* element);
  ~OrbSetPageBreak() override;

  /// Where the break is, or what it may not separate; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  bool isTypePresent() const;
  void removeType();
};
