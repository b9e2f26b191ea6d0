// The footnotes of labels, element `footnotes`.
#pragma once

#include "ctaesthetic.h"

#include <memory>

class OrbFootnoteMapping;

/// The footnotes of labels.
///
/// A load raises the text of ChildNotFoundError on every child element that is not its own, those of the base included.
/// \ingroup aesthetics
class ORBCHART_EXPORT OrbFootnotes : public CTAesthetic {
public:
  static constexpr XMLCh _UTF_footnotes[] = u"footnotes";
  static constexpr const XMLCh* elementName = _UTF_footnotes;

  static constexpr XMLCh _UTF_index[] = u"index";
  static constexpr XMLCh _UTF_superscript[] = u"superscript";

  explicit OrbFootnotes(xercesc::DOMElement* element);
  ~OrbFootnotes() override;

  /// 0 when absent.
  unsigned int getIndex() const;
  void setIndex(unsigned int index);
  bool isIndexPresent() const;
  void removeIndex();

  /// Whether the marks are raised; false when absent.
  bool getSuperscript() const;
  void setSuperscript(bool superscript);
  bool isSuperscriptPresent() const;
  void removeSuperscript();

  /// The values that are mapped one by one.
  OrbFootnoteMapping* addFootnoteMapping();
  std::vector<OrbFootnoteMapping*> getFootnoteMappings() const;
  unsigned int removeFootnoteMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
