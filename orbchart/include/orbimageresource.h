// One image that a document uses, element `imageResource`.
#pragma once

#include "orbbaseelement.h"

/// One image that a document uses, by its name.
/// \ingroup documents
class ORBCHART_EXPORT OrbImageResource : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_imageResource[] = u"imageResource";
  static constexpr const XMLCh* elementName = _UTF_imageResource;

  explicit OrbImageResource(xercesc::DOMElement* element);
  ~OrbImageResource() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  const XMLCh* getName() const;
  void setName(const XMLCh* name);
  bool isNamePresent() const;
  void removeName();
};
