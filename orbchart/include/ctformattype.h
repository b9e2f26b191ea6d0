// What a format of numbers or dates shares.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbAffix;

/// The common base of formats. A load passes over child elements that it does not know.
/// \ingroup style
class ORBCHART_EXPORT CTFormatType : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_hiddenseparator[] = u"hiddenseparator";
  static constexpr XMLCh _UTF_separatorChars[] = u"separatorChars";
  static constexpr XMLCh _UTF_relabelsArePreformatted[] = u"relabelsArePreformatted";

  ~CTFormatType() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The text in front of a value.
  const XMLCh* getPrefix() const;
  void setPrefix(const XMLCh* prefix);
  void removePrefix();

  /// The text behind a value.
  const XMLCh* getSuffix() const;
  void setSuffix(const XMLCh* suffix);
  void removeSuffix();

  /// Whether the separator is hidden; false when absent. The attribute is `hiddenseparator`, all in lower case.
  bool getHiddenSeparator() const;
  void setHiddenSeparator(bool hiddenSeparator);
  bool isHiddenSeparatorPresent() const;
  void removeHiddenSeparator();

  /// The characters that separate parts of a value.
  const XMLCh* getSeparatorChars() const;
  void setSeparatorChars(const XMLCh* separatorChars);
  bool isSeparatorCharsPresent() const;
  void removeSeparatorChars();

  /// Whether the texts of relabels are printed as they stand; false when absent.
  bool getRelabelsArePreformatted() const;
  void setRelabelsArePreformatted(bool relabelsArePreformatted);
  bool isRelabelsArePreformattedPresent() const;
  void removeRelabelsArePreformatted();

  /// What surrounds a value, in the order of addition.
  OrbAffix* addAffix();
  std::vector<OrbAffix*> getAffixs() const;
  unsigned int removeAffixs();

protected:
  explicit CTFormatType(xercesc::DOMElement* element);

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
