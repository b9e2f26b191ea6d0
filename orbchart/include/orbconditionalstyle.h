// A style under a condition, element `conditionalStyle`.
#pragma once

#include "orbbaseelement.h"

class OrbStyle;

/// A style for the data for which a condition holds. Condition and style can be changed but not removed.
/// \ingroup style
class ORBCHART_EXPORT OrbConditionalStyle : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_conditionalStyle[] = u"conditionalStyle";
  static constexpr const XMLCh* elementName = _UTF_conditionalStyle;

  explicit OrbConditionalStyle(xercesc::DOMElement* element);
  OrbConditionalStyle(xercesc::DOMElement* element, const XMLCh* when, const OrbStyle& style);
  ~OrbConditionalStyle() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The condition; the library does not read its text.
  const XMLCh* getWhen() const;
  void setWhen(const XMLCh* when);

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
};
