// A layout of nodes and edges, element `graphLayoutStatistic`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class CTVariableType;
class OrbFixedNode;
class OrbHideSingleNodes;
class OrbInitial;
class OrbMove;
class OrbPolarize;
class OrbRandomize;
class OrbSwap;

/// Gives the nodes of a graph their places; its edges are the rows. In the document the initial arrangements come
/// first, then the improvement steps in the order of addition, then the fixed nodes. An unknown child element raises at
/// a load.
/// \ingroup statistics
class ORBCHART_EXPORT OrbGraphLayoutStatistic : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_graphLayoutStatistic[] = u"graphLayoutStatistic";
  static constexpr const XMLCh* elementName = _UTF_graphLayoutStatistic;

  static constexpr XMLCh _UTF_nodes[] = u"nodes";
  static constexpr XMLCh _UTF_group[] = u"group";

  explicit OrbGraphLayoutStatistic(xercesc::DOMElement* element);
  ~OrbGraphLayoutStatistic() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The variable of the node that an edge begins at. The getter raises "Attribute From refers to <id>, but that
  /// element does not exist." when no element carries the id, an absent one included; else it gives null: no wrapper
  /// registers the key under which it looks. The id is read from the DOM.
  CTVariableType* getFrom() const;
  void setFrom(const CTVariableType& variable);
  void removeFrom();

  /// The variable of the node that an edge ends at. The getter raises "Attribute To refers to <id>, but that element
  /// does not exist." when no element carries the id, an absent one included; else it gives null: no wrapper registers
  /// the key under which it looks. The id is read from the DOM.
  CTVariableType* getTo() const;
  void setTo(const CTVariableType& variable);
  void removeTo();

  /// The variable that names the nodes. The getter always gives null: no wrapper registers the key under which it
  /// looks.
  CTVariableType* getNodes() const;
  void setNodes(const CTVariableType& variable);
  void removeNodes();

  /// The variable that groups the nodes: a source, derived or expression variable, else null.
  CTVariableType* getGroup() const;
  void setGroup(const CTVariableType& variable);
  bool isGroupPresent() const;
  void removeGroup();

  /// The variable of the first coordinate: a source, derived or expression variable, else null.
  CTVariableType* getX() const;
  void setX(const CTVariableType& variable);
  bool isXPresent() const;
  void removeX();

  /// The variable of the second coordinate: a source, derived or expression variable, else null.
  CTVariableType* getY() const;
  void setY(const CTVariableType& variable);
  bool isYPresent() const;
  void removeY();

  /// The arrangements to begin with.
  OrbInitial* addInitial();
  std::vector<OrbInitial*> getInitials() const;
  unsigned int removeInitials();

  /// The steps that improve an arrangement: swap, randomize, move and polarize.
  OrbSwap* addSwap();
  std::vector<OrbSwap*> getSwaps() const;
  unsigned int removeSwaps();

  OrbRandomize* addRandomize();
  std::vector<OrbRandomize*> getRandomizes() const;
  unsigned int removeRandomizes();

  OrbMove* addMove();
  std::vector<OrbMove*> getMoves() const;
  unsigned int removeMoves();

  /// The nodes that have places of their own. A new one goes last.
  OrbFixedNode* addFixedNode();
  std::vector<OrbFixedNode*> getFixedNodes() const;
  unsigned int removeFixedNodes();

  OrbPolarize* addPolarize();
  std::vector<OrbPolarize*> getPolarizes() const;
  unsigned int removePolarizes();

  /// Whether single nodes are hidden. A new one goes last.
  OrbHideSingleNodes* addHideSingleNodes();
  std::vector<OrbHideSingleNodes*> getHideSingleNodess() const;
  unsigned int removeHideSingleNodess();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
