// A join of rows to a map, element `mapStatistic`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbCategories;
class OrbSourceVariable;

/// Joins the rows of a cell to the features of a map file by a key. An unknown child element raises at a load.
/// \ingroup statistics
class ORBCHART_EXPORT OrbMapStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_mapStatistic[] = u"mapStatistic";
  static constexpr const XMLCh* elementName = _UTF_mapStatistic;

  explicit OrbMapStatistic(xercesc::DOMElement* element);
  OrbMapStatistic(xercesc::DOMElement* element, const XMLCh* mapFile);
  ~OrbMapStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The file of the map.
  const XMLCh* getMapFile() const;
  void setMapFile(const XMLCh* mapFile);
  void removeMapFile();

  /// The layer of the map.
  const XMLCh* getLayer() const;
  void setLayer(const XMLCh* layer);
  void removeLayer();

  /// The key in the map.
  const XMLCh* getMapKey() const;
  void setMapKey(const XMLCh* mapKey);
  void removeMapKey();

  /// The key in the data.
  const XMLCh* getDataKey() const;
  void setDataKey(const XMLCh* dataKey);
  void removeDataKey();

  /// The variable that holds the key. Any variable can be written; all but a source variable read as null.
  OrbSourceVariable* getKeyVariable() const;
  void setKeyVariable(const CTVariableType& variable);
  void removeKeyVariable();

  /// Whether features without rows show; false when absent.
  bool getShowAll() const;
  void setShowAll(bool showAll);
  void removeShowAll();

  /// The categories that the keys stand for.
  OrbCategories* addCategories();
  std::vector<OrbCategories*> getCategoriess() const;
  unsigned int removeCategoriess();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
