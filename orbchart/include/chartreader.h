// From a file or a text to a chart in one call.
#pragma once

#include "orbchartexport.h"

#include <memory>
#include <string>

class OrbDocument;

namespace orbchart {
class ChartInput;
}

/// Reads charts for hosts that have a file and no DOM.
///
/// The document that comes out owns its DOM and keeps the XML platform up while it lives; the parser has gone. Every
/// `id` is marked, whatever it looks like, so that references resolve. Ending the document is as cheap as ending one
/// made from nothing.
///
/// What is wrong raises an OrbException that begins "NAME:LINE:COLUMN: " and goes on in words, with the path or the
/// name of the text as it was given, and 1:1 where there is no place to name: a file that is not there, that may not be
/// read, or that is a folder; an empty one; what is not well formed, or not in the encoding that it declares; a
/// document type declaration, which is refused; an element that its parent does not know; elements nested deeper than
/// 10240 levels; more than 10000 attributes in one element, different names, or ids that are given again. Lines and
/// columns count from 1, columns in units of UTF-16; an element is where its tag begins.
///
/// Nothing beside the file itself is ever opened; it may be a pipe or a device. What a load leaves alone (see
/// OrbDocument), the name of the root among it, a read leaves alone as well: ChartChecker finds it.
///
/// \ingroup documents
class ORBCHART_EXPORT ChartReader {
public:
  static std::unique_ptr<OrbDocument> readFile(const std::string& path);
  /// The name stands in messages only.
  static std::unique_ptr<OrbDocument> readText(const std::string& xml, const std::string& name);

private:
  static std::unique_ptr<OrbDocument> read(const orbchart::ChartInput& input);
};
