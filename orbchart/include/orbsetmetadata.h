// A key and its value for chosen cells, element `setMetaData`.
#pragma once

#include "ctcellproperty.h"

/// Sets a key and its value on the chosen cells.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetMetaData : public CTCellProperty {
public:
  static constexpr XMLCh _UTF_setMetaData[] = u"setMetaData";
  static constexpr const XMLCh* elementName = _UTF_setMetaData;

  explicit OrbSetMetaData(xercesc::DOMElement* element);
  ~OrbSetMetaData() override;

  /// The key, free text.
  const XMLCh* getKey() const;
  void setKey(const XMLCh* key);
  bool isKeyPresent() const;
  void removeKey();

  /// The value under the key, free text.
  const XMLCh* getValue() const;
  void setValue(const XMLCh* value);
  bool isValuePresent() const;
  void removeValue();
};
