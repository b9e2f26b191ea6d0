// One fact about the data of a graphic element, element `description`.
#pragma once

#include "orbbaseelement.h"

#include <memory>

class OrbFormat;

/// One fact about the data of a graphic element, to stand in a label, and how it is printed. Inside a value description
/// an element of this name is an OrbDescription2.
/// \ingroup guides
class ORBCHART_EXPORT OrbDescription : public OrbBaseElement {
public:
  static constexpr XMLCh _UTF_description[] = u"description";
  static constexpr const XMLCh* elementName = _UTF_description;

  static constexpr XMLCh _UTF_name_stdev[] = u"stdev";
  static constexpr XMLCh _UTF_name_filterVariable[] = u"filterVariable";
  static constexpr XMLCh _UTF_name_filterDomain[] = u"filterDomain";
  static constexpr XMLCh _UTF_name_rsquared[] = u"rsquared";

  enum ENUM_name : int {
    name_unset = 0,
    name_name = 1,
    name_label = 2,
    name_variable = 3,
    name_value = 4,
    name_mean = 5,
    name_count = 6,
    name_stdev = 7,
    name_max = 8,
    name_min = 9,
    name_median = 10,
    name_filterVariable = 11,
    name_filterDomain = 12,
    name_size = 13,
    name_rsquared = 14,
  };

  explicit OrbDescription(xercesc::DOMElement* element);
  OrbDescription(xercesc::DOMElement* element, ENUM_name name);
  ~OrbDescription() override;

  const XMLCh* getId() const;
  void setId(const XMLCh* id);
  void removeId();

  /// Which fact it is; 0 when absent.
  ENUM_name getName() const;
  void setName(ENUM_name name);
  bool isNamePresent() const;
  void removeName();

  /// How the fact is printed, at most one. A second add raises "Can not add a Format to a Description because 1
  /// Format(s) already exist(s)." with the number that there is.
  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
