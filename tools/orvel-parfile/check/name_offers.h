/// \file
/// What to offer in place of wrong names, of which a job may have thousands among thousands of right ones.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Looks for nearest names as long as that takes no time to speak of.
class NameOffers
{
public:
  /// What there is, and which name is the nearest.
  struct Offer
  {
    const std::string* nearest;  ///< Null when there is none, or when too much has been compared already.
    std::string text;
  };

  Offer For(const std::string& name, const std::vector<std::string>& known);

private:
  std::size_t m_compared = 0;
};
