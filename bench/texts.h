// Charts as files hold them, every element on its line but for what labels hold: the documents that are measured.
#pragma once

#include <array>
#include <string>

namespace bench {

/// A chart whose source has rows.
inline std::string rowsText(unsigned int rows, const std::string& rootAttributes = "") {
  std::string text = "<visualization" + rootAttributes +
                     ">\n\t<!-- measured -->\n\t<embeddedSource id=\"data\">\n\t\t<!-- a table -->\n"
                     "\t\t<names>value;region;year</names>\n\t\t<types>double;string;int</types>";
  for (unsigned int row = 0; row < rows; ++row)
    text += "\n\t\t<row>12.5;north;1999</row>";
  return text + "\n\t</embeddedSource>\n</visualization>\n";
}

inline constexpr unsigned int marksOfAGraph = 3;

inline std::string markText(const std::string& name, unsigned int number) {
  return "\n\t\t<" + name + " id=\"mark" + std::to_string(number) +
         "\">\n\t\t\t<summaryStatistic method=\"mean\"/>\n\t\t\t<color variable=\"station\"/>"
         "\n\t\t\t<x variable=\"month\"/>\n\t\t\t<y variable=\"rain\"/>\n\t\t</" +
         name + ">";
}

inline std::string labelText(const std::string& text) { return "<label><text>" + text + "</text></label>"; }

/// A dimension with its scale and its axis, whose ticks are drawn as is given.
inline std::string dimensionText(const std::string& id, const std::string& title, const std::string& ticks) {
  const std::string indent = "\n\t\t\t\t\t";
  return "\n\t\t\t<dimension id=\"" + id + "\">\n\t\t\t\t<scale method=\"linear\"/>\n\t\t\t\t<axis>" + indent +
         labelText(title) + indent + "<majorTicks position=\"outside\">" + indent + "\t<gridline/>" + indent + "\t" +
         ticks + indent + "</majorTicks>" + indent + "<minorTicks number=\"4\"/>\n\t\t\t\t</axis>\n\t\t\t</dimension>";
}

inline std::string graphText(unsigned int graph) {
  const std::string number = std::to_string(graph);
  std::string text = "\n\t<graph id=\"graph" + number + "\">\n\t\t<coordinates id=\"coordinates" + number + "\">" +
                     dimensionText("across" + number, "Month", labelText("1999")) +
                     dimensionText("up" + number, "Rain", "<format maximumFractionDigits=\"2\"/>") +
                     "\n\t\t</coordinates>\n\t\t<faceting>\n\t\t\t<cross>\n\t\t\t\t<variableReference ref=\"year\"/>"
                     "\n\t\t\t\t<variableReference ref=\"station\"/>\n\t\t\t</cross>\n\t\t</faceting>";
  for (unsigned int mark = graph * marksOfAGraph; mark < (graph + 1) * marksOfAGraph; ++mark)
    text += markText(std::array{"point", "interval", "line"}[mark % 3], mark);
  return text + "\n\t</graph>";
}

/// A chart with the variables of the marks and with graphs.
inline std::string graphChartText(const std::string& graphs, const std::string& rootAttributes = "") {
  return "<visualization" + rootAttributes +
         ">\n\t<sourceVariable id=\"month\"/>\n\t<sourceVariable id=\"rain\"/>\n\t<sourceVariable id=\"station\"/>"
         "\n\t<sourceVariable id=\"year\"/>" +
         graphs + "\n</visualization>\n";
}

inline std::string graphsText(unsigned int count, const std::string& rootAttributes = "") {
  std::string graphs;
  for (unsigned int graph = 0; graph < count; ++graph)
    graphs += graphText(graph);
  return graphChartText(graphs, rootAttributes);
}

} // namespace bench
