// A literal text, element `text`.
#pragma once

#include "cttexttype.h"

/// A literal text in a label or a group of descriptions.
/// \ingroup guides
class ORBCHART_EXPORT OrbText : public CTTextType {
public:
  static constexpr XMLCh _UTF_text[] = u"text";
  static constexpr const XMLCh* elementName = _UTF_text;

  explicit OrbText(xercesc::DOMElement* element);
  ~OrbText() override;
};
