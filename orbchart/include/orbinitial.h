// The arrangement that a graph layout starts from, element `initial`.
#pragma once

#include "orbbaseelement.h"

/// The arrangement of nodes that a graph layout starts from.
/// \ingroup statistics
class ORBCHART_EXPORT OrbInitial : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_initial[] = u"initial";
  static constexpr const XMLCh* elementName = _UTF_initial;

  static constexpr XMLCh _UTF_type_DAG[] = u"DAG";
  static constexpr XMLCh _UTF_root[] = u"root";

  enum ENUM_type : int {
    type_unset = 0,
    type_grid = 1,
    type_random = 2,
    type_tree = 3,
    type_DAG = 4,
    type_circle = 5,
    type_data = 6,
  };

  explicit OrbInitial(xercesc::DOMElement* element);
  ~OrbInitial() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// The kind of arrangement; 0 when absent.
  ENUM_type getType() const;
  void setType(ENUM_type type);
  void removeType();

  /// The node that the arrangement starts from, free text.
  const XMLCh* getRoot() const;
  void setRoot(const XMLCh* root);
  void removeRoot();
};
