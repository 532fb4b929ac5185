#include "OrvelUtilities/KLV_Code.h"

#include <utility>

KLV_Code::KLV_Code(std::string text) : m_text(std::move(text)) {}

bool KLV_Code::exists() const noexcept
{
  return !m_text.empty();
}

const std::string& KLV_Code::GetText() const noexcept
{
  return m_text;
}
