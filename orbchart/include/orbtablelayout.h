// The layout of panels as a table, element `tableLayout`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbLabel;
class OrbStyle;

/// The layout of the panels of a graph as a table, with its labels.
/// \ingroup graph
class ORBCHART_EXPORT OrbTableLayout : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_tableLayout[] = u"tableLayout";
  static constexpr const XMLCh* elementName = _UTF_tableLayout;

  static constexpr XMLCh _UTF_verticalTitlesInCorner[] = u"verticalTitlesInCorner";
  static constexpr XMLCh _UTF_fitCells[] = u"fitCells";
  static constexpr XMLCh _UTF_fitCells_cells[] = u"cells";
  static constexpr XMLCh _UTF_fitCells_ticks[] = u"ticks";

  enum ENUM_fitCells : int {
    fitCells_unset = 0,
    fitCells_none = 1,
    fitCells_cells = 2,
    fitCells_ticks = 3,
    fitCells_both = 4,
  };

  explicit OrbTableLayout(xercesc::DOMElement* element);
  ~OrbTableLayout() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  bool isIdPresent() const;
  void removeId();

  /// Whether vertical titles stand in the corner; false when absent.
  bool getVerticalTitlesInCorner() const;
  void setVerticalTitlesInCorner(bool verticalTitlesInCorner);
  bool isVerticalTitlesInCornerPresent() const;
  void removeVerticalTitlesInCorner();

  OrbStyle* getStyle() const;
  void setStyle(const OrbStyle& style);
  bool isStylePresent() const;
  void removeStyle();

  /// What is fitted to the cells; 0 when absent, which is not the same as "none".
  ENUM_fitCells getFitCells() const;
  void setFitCells(ENUM_fitCells fitCells);
  bool isFitCellsPresent() const;
  void removeFitCells();

  OrbLabel* addLabel();
  std::vector<OrbLabel*> getLabels() const;
  unsigned int removeLabels();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
