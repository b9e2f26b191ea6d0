// Maps a value onto a format, element `formatMapping`.
#pragma once

#include "ctaestheticmapping.h"

#include <memory>

class OrbFormat;

/// Maps a value onto the formats that it holds. An unknown child element raises at a load.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbFormatMapping : public CTAestheticMapping {
public:
  static constexpr XMLCh _UTF_formatMapping[] = u"formatMapping";
  static constexpr const XMLCh* elementName = _UTF_formatMapping;

  explicit OrbFormatMapping(xercesc::DOMElement* element);
  ~OrbFormatMapping() override;

  /// The formats.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
