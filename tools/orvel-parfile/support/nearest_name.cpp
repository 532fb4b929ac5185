#include "nearest_name.h"

#include "plain_text.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace
{

// More than the longest list of keys has; beyond that nobody reads on.
constexpr std::size_t kMostNames = 100;

std::size_t LengthDifference(const std::string& one, const std::string& other)
{
  return one.size() > other.size() ? one.size() - other.size() : other.size() - one.size();
}

// The number of changes, or any number that is not below the limit as soon as that is certain.
std::size_t EditDistance(const std::string& one, const std::string& other, std::size_t limit)
{
  if (LengthDifference(one, other) >= limit)
  {
    return limit;
  }
  std::vector<std::size_t> row(other.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 1; i <= one.size(); ++i)
  {
    std::size_t diagonal = row[0];
    row[0] = i;
    std::size_t least = i;
    for (std::size_t j = 1; j <= other.size(); ++j)
    {
      const std::size_t replaced = diagonal + (one[i - 1] == other[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
      least = std::min(least, row[j]);
    }
    if (least >= limit)
    {
      return limit;
    }
  }
  return row.back();
}

}  // namespace

const std::string* FindNearest(const std::string& name, const std::vector<std::string>& known)
{
  const std::string* nearest = nullptr;
  std::size_t fewest = std::numeric_limits<std::size_t>::max();
  for (const std::string& one : known)
  {
    const std::size_t changes = EditDistance(name, one, fewest);
    if (changes < fewest)
    {
      fewest = changes;
      nearest = &one;
    }
    if (fewest <= 1)
    {
      break;  // only the name itself would be nearer, and that is not asked for
    }
  }
  return nearest;
}

std::string NamesText(const std::vector<std::string>& known)
{
  if (known.empty())
  {
    return "there is none";
  }
  std::string text = "there are ";
  for (std::size_t place = 0; place < std::min(known.size(), kMostNames); ++place)
  {
    text += (place == 0 ? "" : ", ") + PlainText(known[place]);
  }
  return known.size() > kMostNames ? text + " and " + std::to_string(known.size() - kMostNames) + " more" : text;
}

std::string OfferText(const std::string* nearest, const std::vector<std::string>& known)
{
  return nearest != nullptr ? "the nearest is " + PlainText(*nearest) + "; " + NamesText(known) : NamesText(known);
}

std::string NearestName(const std::string& name, const std::vector<std::string>& known)
{
  return OfferText(FindNearest(name, known), known);
}
