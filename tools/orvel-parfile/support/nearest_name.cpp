#include "nearest_name.h"

#include <algorithm>
#include <numeric>

namespace
{

std::size_t EditDistance(const std::string& one, const std::string& other)
{
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 1; i <= one.size(); ++i)
  {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= other.size(); ++j)
    {
      const std::size_t replaced = diagonal + (one[i - 1] == other[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
    }
  }
  return row.back();
}

}  // namespace

std::string NearestName(const std::string& name, const std::vector<std::string>& known)
{
  if (known.empty())
  {
    return "there is none";
  }
  const auto nearest = std::min_element(known.begin(), known.end(), [&](const auto& one, const auto& other) {
    return EditDistance(name, one) < EditDistance(name, other);
  });
  std::string text = "the nearest is " + *nearest + "; there are ";
  for (const std::string& one : known)
  {
    text += (&one == &known.front() ? "" : ", ") + one;
  }
  return text;
}
