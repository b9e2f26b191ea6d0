// A reference to a style, element `styleReference`.
#pragma once

#include "orbbaseelement.h"

class OrbStyle;

/// A bare reference to a style.
/// \ingroup style
class ORBCHART_EXPORT OrbStyleReference : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_styleReference[] = u"styleReference";
  static constexpr const XMLCh* elementName = _UTF_styleReference;

  explicit OrbStyleReference(xercesc::DOMElement* element);
  OrbStyleReference(xercesc::DOMElement* element, const OrbStyle& style);
  ~OrbStyleReference() override;

  OrbStyle* getRef() const;
  void setRef(const OrbStyle& style);
  void removeRef();
};
