// A multiple response variable of an embedded table, element `embeddedMultipleResponseInfo`.
#pragma once

#include "orbbaseelement.h"

/// Describes a multiple response variable of an embedded table. No class of the library makes it or takes it as a
/// child: a host sets it over an element of its own.
/// \ingroup data
class ORBCHART_EXPORT OrbEmbeddedMultipleResponseInfo : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_embeddedMultipleResponseInfo[] = u"embeddedMultipleResponseInfo";
  static constexpr const XMLCh* elementName = _UTF_embeddedMultipleResponseInfo;

  static constexpr XMLCh _UTF_components[] = u"components";
  static constexpr XMLCh _UTF_categoryComponents[] = u"categoryComponents";

  explicit OrbEmbeddedMultipleResponseInfo(xercesc::DOMElement* element);
  ~OrbEmbeddedMultipleResponseInfo() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  const XMLCh* getComponents() const;
  void setComponents(const XMLCh* components);
  bool isComponentsPresent() const;
  void removeComponents();

  const XMLCh* getTarget() const;
  void setTarget(const XMLCh* target);
  bool isTargetPresent() const;
  void removeTarget();

  /// Whether the components are categories; false when absent.
  bool getCategoryComponents() const;
  void setCategoryComponents(bool categoryComponents);
  bool isCategoryComponentsPresent() const;
  void removeCategoryComponents();
};
