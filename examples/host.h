// What the example hosts share: reading a table, reading a chart, and a main function.
#pragma once

#include <orbchart.h>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <exception>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace host {

using Text = std::basic_string<XMLCh>;

inline Text fromUtf8(const std::string& bytes) {
  ChartString text;
  text.assignUTF8(bytes);
  return text.empty() ? Text() : Text(text.xc_str());
}

inline std::string toUtf8(const XMLCh* text) { return ChartString(text).toUTF8(); }

/// What a reader calls a variable; a reference that leads nowhere has no label.
inline std::string labelOf(const CTVariableType* variable) {
  return variable == nullptr ? "nothing" : toUtf8(variable->getLabel());
}

using Table = std::vector<std::vector<std::string>>;

/// The lines of a table of comma-separated values, the one with the names included.
inline Table readTable(const std::string& path) {
  std::ifstream file(path);
  if (!file)
    throw std::runtime_error("cannot read " + path);
  Table table;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line + ",");
    table.emplace_back();
    for (std::string field; std::getline(fields, field, ',');)
      table.back().push_back(field);
  }
  return table;
}

/// One row of a source. An empty field would not exist there, so that a missing value (nothing in the table, or a lone
/// point) is said as such.
inline Text rowOf(const std::vector<std::string>& fields) {
  std::string row;
  for (const std::string& field : fields)
    row += (row.empty() ? "" : ";") + (field.empty() || field == "." ? "NA" : field);
  return fromUtf8(row);
}

/// Puts the lines of a table into a source: names, types, and a row for each line, in the order of the table.
inline void fillSource(OrbEmbeddedSource& source, const Table& table, const XMLCh* types) {
  source.addNames()->setText(rowOf(table.front()).c_str());
  source.addTypes()->setText(types);
  // A new row goes before the one that was added first: with the last line first, all stand in their order.
  source.addRow()->setText(rowOf(table.back()).c_str());
  for (std::size_t line = 1; line + 1 < table.size(); ++line)
    source.addRow()->setText(rowOf(table[line]).c_str());
}

/// Keeps the XML platform up.
struct Platform {
  Platform() { xercesc::XMLPlatformUtils::Initialize(); }
  Platform(const Platform&) = delete;
  Platform& operator=(const Platform&) = delete;
  ~Platform() { xercesc::XMLPlatformUtils::Terminate(); }
};

/// A chart that was read from its text, so that its references resolve.
class ParsedChart {
public:
  explicit ParsedChart(const std::string& xml) : document_(ChartReader::readText(xml, "chart")) {}
  OrbDocument& document() { return *document_; }
  OrbVisualization& chart() { return *document_->GetVisualization(); }

private:
  std::unique_ptr<OrbDocument> document_;
};

/// Fails if a chart that was printed and read prints otherwise than before.
inline void requireSameAgain(ParsedChart& parsed, const std::string& printed) {
  if (parsed.document().AsUTF8() != printed)
    throw std::runtime_error("the chart prints differently when it has been read");
}

/// What an exception says that is being handled. Those of Xerces, which what writes to a chart may throw, are no
/// std::exception.
inline std::string messageOfException() {
  try {
    throw;
  } catch (const std::exception& error) { // an OrbException among them
    return error.what();
  } catch (const xercesc::XMLException& error) {
    return toUtf8(error.getMessage());
  } catch (const xercesc::DOMException& error) {
    return toUtf8(error.getMessage());
  } catch (const xercesc::OutOfMemoryException&) {
    return "out of memory";
  }
}

/// The main function of an example. The work gets the folder of the data, which the one argument names; it prints its
/// document on the standard output and says on the error stream what it did.
template <class Work> int run(int count, char** arguments, Work work) {
  // The memory of an exception of Xerces belongs to the platform, which stays up until it has been handled.
  const Platform platform;
  try {
    work(std::string(count > 1 ? arguments[1] : "examples/data"));
    return 0;
  } catch (...) {
    std::cerr << arguments[0] << ": " << messageOfException() << "\n";
    return 1;
  }
}

} // namespace host
