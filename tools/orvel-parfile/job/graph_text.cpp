#include "graph_text.h"

#include "support/plain_text.h"

#include "OrvelCommands/commands/command_schema.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <set>

namespace schema = orvel::schema;

namespace
{

constexpr std::size_t kStackHeight = 4;
constexpr std::size_t kRowWidth = 8;
constexpr const char* kRed = "#cc0000";

std::string HtmlText(const std::string& text)
{
  std::string html;
  for (const char character : text)
  {
    switch (character)
    {
      case '&': html += "&amp;"; break;
      case '<': html += "&lt;"; break;
      case '>': html += "&gt;"; break;
      case '"': html += "&quot;"; break;
      case ']': html += "&#93;"; break;  // dot takes one for the begin of "]]>"
      default: html += character;
    }
  }
  return html;
}

// A name in quotation marks. What could mean something to dot stands by its number, %22, and so does the per cent sign.
std::string Name(const JobGraph::Node& node)
{
  std::string name = "\"";
  for (const char character : node.kind + "/" + node.id)
  {
    const auto byte = static_cast<unsigned char>(character);
    if (std::isalnum(byte) != 0 || std::string_view("_./- ").find(character) != std::string_view::npos)
    {
      name += character;
      continue;
    }
    std::array<char, 4> code{};
    std::snprintf(code.data(), code.size(), "%%%02x", byte);
    name += code.data();
  }
  return name + "\"";
}

// A light colour, as hue, saturation and value. Steps of the golden ratio keep the hues of neighbours apart.
std::string ColorOf(const std::string& kind)
{
  const schema::Command* command = schema::FindCommand(kind);
  if (command == nullptr)
  {
    return "0.000 0.000 0.930";
  }
  const auto place = static_cast<std::size_t>(command - schema::Commands().begin());
  constexpr double golden_ratio = 0.618034;
  constexpr std::array<double, 3> saturations = {0.18, 0.30, 0.24};
  const double hue = std::fmod(static_cast<double>(place) * golden_ratio, 1.0);
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.3f %.3f 1.000", hue, saturations[place % saturations.size()]);
  return text.data();
}

std::string Label(const JobGraph::Node& node)
{
  if (node.kind.empty())
  {
    return "<b>nothing</b>";
  }
  const std::string head = "<font point-size=\"8\">" + HtmlText(PlainText(node.kind)) + "</font><br/><b>" +
                           HtmlText(PlainText(node.id)) + "</b>";
  return node.is_there ? head : head + "<br/><font point-size=\"8\">there is none</font>";
}

class GraphWriter
{
public:
  GraphWriter(const JobGraph& graph, const std::string& title) : m_graph(graph), m_title(title)
  {
    for (std::size_t node = 0; node < graph.Nodes().size(); ++node)
    {
      m_parts[graph.Nodes()[node].part].push_back(node);
      if (graph.Nodes()[node].kind == kRootKind)
      {
        m_roots.push_back(node);
      }
    }
    for (const JobGraph::Edge& edge : graph.Edges())
    {
      if (At(edge.from).part == At(edge.to).part)
      {
        m_inner.insert(edge.to);
      }
    }
    m_depth = std::max(graph.Depth(), m_roots.empty() ? 0 : kStackHeight);
  }

  std::string Write()
  {
    AddHead();
    for (const std::size_t node : m_parts[JobGraph::Part::Reached])
    {
      AddNode(node);
    }
    std::for_each(m_roots.begin(), m_roots.end(), [&](std::size_t root) { StackLeavesOf(root); });
    AddGroup(JobGraph::Part::Standalone, "standalone", "read without a reference");
    AddGroup(JobGraph::Part::Unused, "unused", std::string("nothing leads here from ") + kRootKind);
    std::for_each(m_graph.Edges().begin(), m_graph.Edges().end(), [&](const JobGraph::Edge& edge) { AddEdge(edge); });
    return m_text + "}\n";
  }

private:
  const JobGraph::Node& At(std::size_t node) const { return m_graph.Nodes()[node]; }

  void AddHead()
  {
    const auto has = [&](auto is_it) { return std::any_of(m_graph.Edges().begin(), m_graph.Edges().end(), is_it); };
    const bool has_model_ids = has([](const JobGraph::Edge& edge) { return edge.is_model_id; });
    const bool has_dangling = has([&](const JobGraph::Edge& edge) { return !At(edge.to).is_there; });
    m_text = "digraph job {\n"
             "rankdir=TB; nodesep=0.12; ranksep=0.45; fontname=\"Helvetica\"; fontsize=11; labelloc=b; labeljust=l;\n"
             "label=<" +
             HtmlText(m_title) + "<br align=\"left\"/>arrow: refers to" +
             (has_model_ids ? "; dashed: names as a group or coordinate system" : "") +
             (has_dangling ? std::string("; <font color=\"") + kRed + "\">red: leads to no command</font>" : "") +
             "<br align=\"left\"/>>;\n"
             "node [shape=box style=\"rounded,filled\" fontname=\"Helvetica\" fontsize=11 margin=\"0.08,0.04\" "
             "penwidth=0.6 color=\"#555555\"];\n"
             "edge [color=\"#333333\" arrowsize=0.6 penwidth=0.9 fontname=\"Helvetica\" fontsize=7 "
             "fontcolor=\"#666666\"];\n";
  }

  void AddNode(std::size_t node)
  {
    const JobGraph::Node& one = At(node);
    const std::string look =
      !one.is_there
        ? std::string("style=\"rounded,dashed\" penwidth=1.5 color=\"") + kRed + "\" fontcolor=\"" + kRed + "\""
        : "fillcolor=\"" + ColorOf(one.kind) + "\"" + (one.kind == kRootKind ? " penwidth=2.5" : "");
    m_text += Name(one) + " [label=<" + Label(one) + "> " + look + "];\n";
  }

  void AddInvisibleEdge(std::size_t from, std::size_t to, std::size_t length, const std::string& more = {})
  {
    m_text += Name(At(from)) + " -> " + Name(At(to)) + " [style=invis minlen=" + std::to_string(length) + more + "];\n";
  }

  // A root has many settings that lead nowhere: they stand below one another, or the picture would be all width.
  void StackLeavesOf(std::size_t root)
  {
    std::size_t height = 0;
    std::size_t last = 0;
    for (const std::size_t target : m_graph.TargetsOf(root))
    {
      if (!m_graph.TargetsOf(target).empty() || m_graph.SourceCount(target) != 1)
      {
        continue;
      }
      if (height > 0)
      {
        AddInvisibleEdge(last, target, 1, " weight=100");
      }
      last = target;
      height = (height + 1) % kStackHeight;
    }
  }

  void AddGroup(JobGraph::Part part, const std::string& name, const std::string& label)
  {
    const std::vector<std::size_t>& nodes = m_parts[part];
    if (nodes.empty())
    {
      return;
    }
    m_text += "subgraph cluster_" + name + " {\nlabel=\"" + label +
              "\"; labelloc=t; style=\"rounded\"; color=\"#bbbbbb\"; bgcolor=\"#f7f7f7\";\n";
    std::for_each(nodes.begin(), nodes.end(), [&](std::size_t node) { AddNode(node); });
    m_text += "}\n";
    std::size_t place = 0;
    for (const std::size_t node : nodes)
    {
      if (!m_roots.empty() && m_inner.count(node) == 0)
      {
        AddInvisibleEdge(m_roots.front(), node, m_depth + 1 + place++ / kRowWidth, " weight=0");
      }
    }
  }

  void AddEdge(const JobGraph::Edge& edge)
  {
    const JobGraph::Node& to = At(edge.to);
    std::string look = edge.is_model_id ? " style=dashed color=\"#999999\"" : "";
    if (!to.is_there)
    {
      look += std::string(" penwidth=1.5 color=\"") + kRed + "\" fontcolor=\"" + kRed + "\"";
    }
    if (edge.key != to.kind)
    {
      look += " label=<" + HtmlText(PlainText(edge.key)) + ">";
    }
    if (At(edge.from).part != to.part)
    {
      look += " constraint=false";  // what stands apart below must not be drawn up
    }
    m_text += Name(At(edge.from)) + " -> " + Name(to) + (look.empty() ? "" : " [" + look.substr(1) + "]") + ";\n";
  }

  const JobGraph& m_graph;
  const std::string& m_title;
  std::map<JobGraph::Part, std::vector<std::size_t>> m_parts;
  std::vector<std::size_t> m_roots;
  std::set<std::size_t> m_inner;  // nodes to which one of the same part leads
  std::size_t m_depth = 0;
  std::string m_text;
};

}  // namespace

std::string GraphText(const JobGraph& graph, const std::string& title)
{
  return GraphWriter(graph, title).Write();
}
