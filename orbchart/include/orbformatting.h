// The formats of labels by their values, element `formatting`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbFormatMapping;

/// The formats of labels by their values.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbFormatting : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_formatting[] = u"formatting";
  static constexpr const XMLCh* elementName = _UTF_formatting;

  explicit OrbFormatting(xercesc::DOMElement* element);
  ~OrbFormatting() override;

  /// The values that are mapped one by one.
  OrbFormatMapping* addFormatMapping();
  std::vector<OrbFormatMapping*> getFormatMappings() const;
  unsigned int removeFormatMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
