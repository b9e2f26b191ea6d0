// The text that a mark shows, element `popup`.
#pragma once

#include "ctinteraction.h"

#include <memory>

class OrbTokenMapping;

/// Shows a text when the viewer points at a mark. The text is made of a template of tokens, each filled from a
/// variable.
/// \ingroup interaction
class ORBCHART_EXPORT OrbPopup : public CTInteraction {
public:
  static constexpr XMLCh _UTF_popup[] = u"popup";
  static constexpr const XMLCh* elementName = _UTF_popup;

  static constexpr XMLCh _UTF_tokenTemplate[] = u"tokenTemplate";
  static constexpr XMLCh _UTF_part_outlier[] = u"outlier";

  enum ENUM_part : int {
    part_unset = 0,
    part_median = 1,
    part_outlier = 2,
    part_extreme = 3,
  };

  explicit OrbPopup(xercesc::DOMElement* element);
  ~OrbPopup() override;

  /// What the viewer points at, of any class. The getter never gives it: it is null when the target exists, and
  /// otherwise raises "Attribute Target refers to <id>, but that element does not exist.", for an absent target with an
  /// empty id.
  OrbBaseElement* getTarget() const;
  void setTarget(const OrbBaseElement& target);
  void removeTarget();

  /// The text, with tokens in the places that are filled.
  const XMLCh* getTokenTemplate() const;
  void setTokenTemplate(const XMLCh* tokenTemplate);
  bool isTokenTemplatePresent() const;
  void removeTokenTemplate();

  /// The part of the mark that has the text; 0 when absent.
  ENUM_part getPart() const;
  void setPart(ENUM_part part);
  bool isPartPresent() const;
  void removePart();

  /// What fills the tokens.
  OrbTokenMapping* addTokenMapping();
  std::vector<OrbTokenMapping*> getTokenMappings() const;
  unsigned int removeTokenMappings();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
