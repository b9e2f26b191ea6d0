// One step of a style cycle, element `cycle`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbStyle;

/// One step of a style cycle: the styles that stand for it. An unknown child element raises at a load.
/// \ingroup style
class ORBCHART_EXPORT OrbCycle : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_cycle[] = u"cycle";
  static constexpr const XMLCh* elementName = _UTF_cycle;

  explicit OrbCycle(xercesc::DOMElement* element);
  ~OrbCycle() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  OrbStyle* addStyle();
  std::vector<OrbStyle*> getStyles() const;
  unsigned int removeStyles();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
