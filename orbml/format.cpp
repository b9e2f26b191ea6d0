// orbml format: documents as the library writes them.
#include "commands.h"
#include "files.h"
#include "samecontent.h"
#include "text.h"

#include <chartreader.h>
#include <orbdocument.h>

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

/// The document as the library writes it. The writer leaves out what the encoding cannot hold, and a parser reads some
/// blanks otherwise than they were: what would not come back is not written.
std::string formattedText(const OrbDocument& chart, const std::string& file) {
  std::string text = chart.AsUTF8();
  const std::unique_ptr<OrbDocument> again = ChartReader::readText(text, nameOf(file));
  if (!holdTheSame(*chart.getImplementation(), *again->getImplementation()))
    throw FileError(printable(nameOf(file)) +
                    ": cannot be formatted without a loss: its encoding, or an attribute, cannot hold a character");
  return text;
}

ExitCode print(const std::string& file) {
  std::cout << formattedText(*readChart(file), file);
  return nothingToReport;
}

ExitCode formatOne(const std::string& file, const FormatOptions& options) {
  if (!options.inPlace && !options.checkOnly)
    return print(file);
  if (options.inPlace)
    requireReplaceable(file);
  const std::string content = contentOf(file);
  const std::string formatted = formattedText(*ChartReader::readText(content, nameOf(file)), file);
  if (formatted == content)
    return nothingToReport;
  if (options.inPlace) {
    replaceFile(file, formatted);
    return nothingToReport;
  }
  std::cout << printable(nameOf(file)) << ": would change\n";
  return somethingFound;
}

} // namespace

ExitCode format(const FormatOptions& options) {
  ExitCode highest = nothingToReport;
  for (const std::string& file : options.files)
    highest = std::max(highest, onFile([&] { return formatOne(file, options); }));
  return highest;
}
