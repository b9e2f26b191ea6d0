// The images that a document uses, element `resources`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbImageResource;

/// The images that a document uses.
/// \ingroup documents
class ORBCHART_EXPORT OrbResources : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_resources[] = u"resources";
  static constexpr const XMLCh* elementName = _UTF_resources;

  explicit OrbResources(xercesc::DOMElement* element);
  ~OrbResources() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  OrbImageResource* addImageResource();
  std::vector<OrbImageResource*> getImageResources() const;
  unsigned int removeImageResources();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
