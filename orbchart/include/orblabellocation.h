// Where a label stands in one direction, element `labelLocation`.
#pragma once

#include "ctaesthetic.h"

/// Where a label stands in one direction.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbLabelLocation : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_labelLocation[] = u"labelLocation";
  static constexpr const XMLCh* elementName = _UTF_labelLocation;

  enum ENUM_role : int {
    role_x = 0,
    role_y = 1,
  };

  explicit OrbLabelLocation(xercesc::DOMElement* element);
  ~OrbLabelLocation() override;

  /// The direction; "x", which is 0, when absent.
  ENUM_role getRole() const;
  void setRole(ENUM_role role);
  void removeRole();
};
