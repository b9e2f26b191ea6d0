// A grid line, element `gridline`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbConditionalStyle;
class OrbStyle;
class OrbStyleReference;

/// A grid line, drawn from the ticks of an axis.
/// \ingroup guides
class ORBCHART_EXPORT OrbGridline : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_gridline[] = u"gridline";
  static constexpr const XMLCh* elementName = _UTF_gridline;

  explicit OrbGridline(xercesc::DOMElement* element);
  ~OrbGridline() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  void removeStyle();

  /// The place in the order of drawing. A negative number is written with its sign and reads as 0.
  int getZOrder() const;
  void setZOrder(int zOrder);
  void removeZOrder();

  /// The style of the lines for which a condition holds, at most one: `when` and the style are written to the new
  /// child. A second add raises "Can not add a ConditionalStyle to a Gridline because 1 ConditionalStyle(s) already
  /// exist(s)." with the number that there is.
  OrbConditionalStyle* addConditionalStyle(const XMLCh* when, const OrbStyle& style);
  OrbConditionalStyle* getConditionalStyle() const;
  unsigned int removeConditionalStyles();

  /// A reference to a style, at most one. A second add raises "Can not add a StyleReference to a Gridline because 1
  /// StyleReference(s) already exist(s)." with the number that there is.
  OrbStyleReference* addStyleReference();
  OrbStyleReference* getStyleReference() const;
  unsigned int removeStyleReferences();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
