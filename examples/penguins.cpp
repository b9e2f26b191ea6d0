// The main job of the library: a chart document over real data, written, read back and written again.
#include "penguindata.h"

namespace {

std::string makeChart(const host::Table& table) {
  OrbDocument document;
  OrbVisualization* chart = document.GetVisualization();
  chart->setVersion(2.9);
  chart->setName(u"Penguins of the Palmer Archipelago");
  const PenguinData penguins(*chart, table);

  OrbExpressionVariable* kilograms = chart->addExpressionVariable(u"bodyMassKg");
  kilograms->setLabel(u"Body mass in kg");
  kilograms->setExpression(u"bodyMass / 1000");
  kilograms->setDependsOn(*penguins.bodyMass);

  chart->addGraph(u"graph");
  return document.AsUTF8();
}

/// What a reader finds in the printed document, asked through the wrappers.
void tell(const OrbVisualization& chart, std::ostream& out) {
  const std::vector<OrbRow*> rows = chart.getEmbeddedSources().front()->getRows();
  std::size_t incomplete = 0;
  for (const OrbRow* row : rows)
    incomplete += row->getText().ContainsString(u"NA") ? 1 : 0;
  out << "  " << rows.size() << " penguins, " << incomplete << " of them with a missing value\n"
      << "  the first: " << rows.front()->getText().toUTF8() << "\n"
      << "  the last:  " << rows.back()->getText().toUTF8() << "\n";
  for (const OrbExpressionVariable* variable : chart.getExpressionVariables()) {
    out << "  \"" << host::toUtf8(variable->getLabel()) << "\" is " << host::toUtf8(variable->getExpression())
        << " and depends on \"" << host::toUtf8(variable->getDependsOn()->getLabel()) << "\"\n";
  }
}

} // namespace

int main(int count, char** arguments) {
  return host::run(count, arguments, [](const std::string& data) {
    const host::Table table = host::readTable(data + "/penguins.csv");
    const std::string printed = makeChart(table);
    std::cout << printed;

    host::ParsedChart parsed(printed);
    std::clog << "penguins: a chart made from " << table.size() - 1 << " lines, printed, parsed and read back\n";
    tell(parsed.chart(), std::clog);
    host::requireSameAgain(parsed, printed);
    std::clog << "  printed again: the same " << printed.size() << " bytes\n";
  });
}
