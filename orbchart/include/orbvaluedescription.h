// A group of values with their descriptions, element `valueDescription`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbDescription2;
class OrbValue;

/// A group of values with their descriptions. No class of the library makes it or takes it as a child: a host sets it
/// over an element of its own.
/// \ingroup variables
class ORBCHART_EXPORT OrbValueDescription : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_valueDescription[] = u"valueDescription";
  static constexpr const XMLCh* elementName = _UTF_valueDescription;

  explicit OrbValueDescription(xercesc::DOMElement* element);
  ~OrbValueDescription() override;

  OrbValue* addValue();
  std::vector<OrbValue*> getValues() const;
  unsigned int removeValues();

  OrbDescription2* addDescription();
  std::vector<OrbDescription2*> getDescriptions() const;
  unsigned int removeDescriptions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
