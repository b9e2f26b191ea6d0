// A label, element `label`.
#pragma once

#include "ctlabeltype.h"

/// The label of an axis, of major ticks, a guide, a legend, a table layout or a label frame.
/// \ingroup guides
class ORBCHART_EXPORT OrbLabel : public CTLabelType {
public:
  static constexpr XMLCh _UTF_label[] = u"label";
  static constexpr const XMLCh* elementName = _UTF_label;

  static constexpr XMLCh _UTF_purpose[] = u"purpose";
  static constexpr XMLCh _UTF_purpose_title[] = u"title";
  static constexpr XMLCh _UTF_purpose_subTitle[] = u"subTitle";
  static constexpr XMLCh _UTF_purpose_subSubTitle[] = u"subSubTitle";
  static constexpr XMLCh _UTF_purpose_footnote[] = u"footnote";
  static constexpr XMLCh _UTF_purpose_subFootnote[] = u"subFootnote";
  static constexpr XMLCh _UTF_purpose_subSubFootnote[] = u"subSubFootnote";

  enum ENUM_purpose : int {
    purpose_unset = 0,
    purpose_title = 1,
    purpose_subTitle = 2,
    purpose_subSubTitle = 3,
    purpose_footnote = 4,
    purpose_subFootnote = 5,
    purpose_subSubFootnote = 6,
    purpose_layer = 7,
    purpose_auto = 8,
  };

  explicit OrbLabel(xercesc::DOMElement* element);
  ~OrbLabel() override;

  /// The same as the base's.
  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// What the label is for; 0 when absent.
  ENUM_purpose getPurpose() const;
  void setPurpose(ENUM_purpose purpose);
  bool isPurposePresent() const;
  void removePurpose();
};
