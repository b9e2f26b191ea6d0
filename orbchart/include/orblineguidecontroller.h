// The control of line guides, element `lineGuideController`.
#pragma once

#include "ctinteraction.h"

/// Lets the viewer add and move line guides.
/// \ingroup interaction
class ORBCHART_EXPORT OrbLineGuideController : public CTInteraction {
public:
  static constexpr XMLCh _UTF_lineGuideController[] = u"lineGuideController";
  static constexpr const XMLCh* elementName = _UTF_lineGuideController;

  static constexpr XMLCh _UTF_newLineOrientation[] = u"newLineOrientation";

  enum ENUM_newLineOrientation : int {
    newLineOrientation_unset = 0,
    newLineOrientation_x = 1,
    newLineOrientation_y = 2,
    newLineOrientation_z = 3,
  };

  explicit OrbLineGuideController(xercesc::DOMElement* element);
  ~OrbLineGuideController() override;

  /// The axis that a new line goes with; 0 when absent.
  ENUM_newLineOrientation getNewLineOrientation() const;
  void setNewLineOrientation(ENUM_newLineOrientation newLineOrientation);
  bool isNewLineOrientationPresent() const;
  void removeNewLineOrientation();
};
