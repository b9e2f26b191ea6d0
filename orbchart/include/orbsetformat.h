// The format of chosen cells, element `setFormat`.
#pragma once

#include "ctcellproperty.h"

#include <memory>

class OrbFormat;

/// Sets the format of the chosen cells.
/// \ingroup graph
class ORBCHART_EXPORT OrbSetFormat : public CTCellProperty {
public:
  static constexpr XMLCh _UTF_setFormat[] = u"setFormat";
  static constexpr const XMLCh* elementName = _UTF_setFormat;

  static constexpr XMLCh _UTF_definesReference[] = u"definesReference";
  static constexpr XMLCh _UTF_reset[] = u"reset";

  explicit OrbSetFormat(xercesc::DOMElement* element);
  ~OrbSetFormat() override;

  /// The reference that the format defines, free text.
  const XMLCh* getDefinesReference() const;
  void setDefinesReference(const XMLCh* definesReference);
  bool isDefinesReferencePresent() const;
  void removeDefinesReference();

  /// Whether the format that the cells had is reset; false when absent.
  bool getReset() const;
  void setReset(bool reset);
  bool isResetPresent() const;
  void removeReset();

  OrbFormat* addFormat();
  std::vector<OrbFormat*> getFormats() const;
  unsigned int removeFormats();

private:
  struct Children;
  std::unique_ptr<Children> children_;
};
