// What sets properties of chosen cells, element `setCellProperties`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbSetFormat;
class OrbSetFrameStyle;
class OrbSetMetaData;
class OrbSetPageBreak;
class OrbSetStyle;
class OrbUnion;

/// Sets properties of the cells of a layout that its unions choose.
///
/// The properties stand before the unions, in the order of the adds, whatever their kind.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetCellProperties : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_setCellProperties[] = u"setCellProperties";
  static constexpr const XMLCh* elementName = _UTF_setCellProperties;

  static constexpr XMLCh _UTF_applyToConverse[] = u"applyToConverse";

  explicit OrbSetCellProperties(xercesc::DOMElement* element);
  ~OrbSetCellProperties() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// Whether the properties are set on all the other cells instead; false when absent.
  bool getApplyToConverse() const;
  void setApplyToConverse(bool applyToConverse);
  bool isApplyToConversePresent() const;
  void removeApplyToConverse();

  OrbSetFormat* addSetFormat();
  std::vector<OrbSetFormat*> getSetFormats() const;
  unsigned int removeSetFormats();

  OrbSetStyle* addSetStyle();
  std::vector<OrbSetStyle*> getSetStyles() const;
  unsigned int removeSetStyles();

  OrbSetMetaData* addSetMetaData();
  std::vector<OrbSetMetaData*> getSetMetaDatas() const;
  unsigned int removeSetMetaDatas();

  OrbSetPageBreak* addSetPageBreak();
  std::vector<OrbSetPageBreak*> getSetPageBreaks() const;
  unsigned int removeSetPageBreaks();

  OrbSetFrameStyle* addSetFrameStyle();
  std::vector<OrbSetFrameStyle*> getSetFrameStyles() const;
  unsigned int removeSetFrameStyles();

  /// Which cells: those that any of them selects.
  OrbUnion* addUnion();
  std::vector<OrbUnion*> getUnions() const;
  unsigned int removeUnions();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
