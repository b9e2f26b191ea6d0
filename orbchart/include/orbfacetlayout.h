// How the panels of a faceted graph are laid out, element `facetLayout`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbFacetLevel;
class OrbSetCellProperties;
class OrbTableLayout;

/// How the panels of a faceted graph are laid out: as tables, by the levels of the faceting, and cell by cell.
///
/// The children stand in the order of the adds, whatever their kind.
/// \ingroup graph
class ORBCHART_EXPORT OrbFacetLayout : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_facetLayout[] = u"facetLayout";
  static constexpr const XMLCh* elementName = _UTF_facetLayout;

  static constexpr XMLCh _UTF_method_transposed[] = u"transposed";
  static constexpr XMLCh _UTF_topDown[] = u"topDown";
  static constexpr XMLCh _UTF_cellSize[] = u"cellSize";
  static constexpr XMLCh _UTF_verticalTitlesInCorner[] = u"verticalTitlesInCorner";
  static constexpr XMLCh _UTF_alternatingColor[] = u"alternatingColor";

  enum ENUM_method : int {
    method_unset = 0,
    method_structured = 1,
    method_unstructured = 2,
    method_transposed = 3,
    method_coordinates = 4,
  };

  explicit OrbFacetLayout(xercesc::DOMElement* element);
  ~OrbFacetLayout() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The ratio of a cell's sides; 0.0 when absent.
  double getCellAspect() const;
  void setCellAspect(double cellAspect);
  void removeCellAspect();

  /// How the cells are arranged; 0 when absent.
  ENUM_method getMethod() const;
  void setMethod(ENUM_method method);
  bool isMethodPresent() const;
  void removeMethod();

  /// Whether the layout runs from top to bottom; false when absent.
  bool getTopDown() const;
  void setTopDown(bool topDown);
  void removeTopDown();

  /// The size of a cell, free text.
  const XMLCh* getCellSize() const;
  void setCellSize(const XMLCh* cellSize);
  bool isCellSizePresent() const;
  void removeCellSize();

  /// Whether vertical titles stand in the corner; false when absent.
  bool getVerticalTitlesInCorner() const;
  void setVerticalTitlesInCorner(bool verticalTitlesInCorner);
  bool isVerticalTitlesInCornerPresent() const;
  void removeVerticalTitlesInCorner();

  /// The color of alternating cells, free text.
  const XMLCh* getAlternatingColor() const;
  void setAlternatingColor(const XMLCh* alternatingColor);
  bool isAlternatingColorPresent() const;
  void removeAlternatingColor();

  OrbTableLayout* addTableLayout();
  std::vector<OrbTableLayout*> getTableLayouts() const;
  unsigned int removeTableLayouts();

  /// The levels of the faceting. A remove takes the ids off them.
  OrbFacetLevel* addFacetLevel(const XMLCh* id, unsigned int level);
  OrbFacetLevel* addFacetLevel(unsigned int level);
  std::vector<OrbFacetLevel*> getFacetLevels() const;
  unsigned int removeFacetLevels();

  /// What changes the properties of single cells.
  OrbSetCellProperties* addSetCellProperties();
  std::vector<OrbSetCellProperties*> getSetCellPropertiess() const;
  unsigned int removeSetCellPropertiess();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
