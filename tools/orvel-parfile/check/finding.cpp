#include "finding.h"

#include "support/at_place.h"

std::string AsLine(const Finding& finding)
{
  return AtPlace(finding.place, finding.text + (finding.remedy.empty() ? "" : "; " + finding.remedy));
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
