// Styles that values run through in turn, element `styleCycle`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbCycle;
class OrbExtension;

/// An ordered list of styles that values run through in turn; aesthetics refer to it by its id. An unknown child
/// element raises at a load.
/// \ingroup style
class ORBCHART_EXPORT OrbStyleCycle : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_styleCycle[] = u"styleCycle";
  static constexpr const XMLCh* elementName = _UTF_styleCycle;

  explicit OrbStyleCycle(xercesc::DOMElement* element);
  OrbStyleCycle(xercesc::DOMElement* element, const XMLCh* id);
  ~OrbStyleCycle() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The steps. A new one goes before the first extension.
  OrbCycle* addCycle();
  std::vector<OrbCycle*> getCycles() const;
  unsigned int removeCycles();

  /// Free attributes of the host.
  OrbExtension* addExtension();
  std::vector<OrbExtension*> getExtensions() const;
  unsigned int removeExtensions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
