#include "finding.h"

std::string AsLine(const Finding& finding)
{
  return (finding.place.empty() ? "" : finding.place + ": ") + finding.text +
         (finding.remedy.empty() ? "" : "; " + finding.remedy);
}

std::vector<std::string> AsLines(const std::vector<Finding>& findings)
{
  std::vector<std::string> lines;
  lines.reserve(findings.size());
  for (const Finding& finding : findings)
  {
    lines.push_back(AsLine(finding));
  }
  return lines;
}
