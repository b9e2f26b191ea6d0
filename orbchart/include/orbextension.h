// Free attributes of the host, element `extension`.
#pragma once

#include "orbbaseelement.h"

/// Free attributes that the host keeps at an element. What they mean is the host's affair.
///
/// Children are not looked at: they stay in the document and have no wrappers.
/// \ingroup documents
class ORBCHART_EXPORT OrbExtension : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_extension[] = u"extension";
  static constexpr const XMLCh* elementName = _UTF_extension;

  explicit OrbExtension(xercesc::DOMElement* element);
  ~OrbExtension() override;

  /// Any attribute, by its name. A name that XML does not allow writes nothing.
  const XMLCh* getAttribute(const XMLCh* name) const;
  void setAttribute(const XMLCh* name, const XMLCh* value);
  void removeAttribute(const XMLCh* name);
};
