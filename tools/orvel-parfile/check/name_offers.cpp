#include "name_offers.h"

#include "support/nearest_name.h"

namespace
{

// Some tenths of a second; who has more wrong names has another fault than mistyping.
constexpr std::size_t kMostCompared = 500'000;

}  // namespace

NameOffers::Offer NameOffers::For(const std::string& name, const std::vector<std::string>& known)
{
  if (m_compared > kMostCompared)
  {
    return {nullptr, NamesText(known)};
  }
  m_compared += known.size();
  const std::string* nearest = FindNearest(name, known);
  return {nearest, OfferText(nearest, known)};
}
