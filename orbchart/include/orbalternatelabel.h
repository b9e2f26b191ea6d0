// A label in another language, element `alternateLabel`.
#pragma once

#include "ctlabeltype.h"

/// A variant of a label in another language.
/// \ingroup guides
class ORBCHART_EXPORT OrbAlternateLabel : public CTLabelType {
public:
  static constexpr XMLCh _UTF_alternateLabel[] = u"alternateLabel";
  static constexpr const XMLCh* elementName = _UTF_alternateLabel;

  explicit OrbAlternateLabel(xercesc::DOMElement* element);
  ~OrbAlternateLabel() override;

  /// The language, free text.
  const XMLCh* getLang() const;
  void setLang(const XMLCh* lang);
  void removeLang();
};
