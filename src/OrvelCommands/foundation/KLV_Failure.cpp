#include "OrvelCommands/foundation/KLV_Failure.h"

namespace
{
constexpr std::int32_t kStatusWithCode = -1;
constexpr std::int32_t kStatusWithoutCode = -14;
}  // namespace

KLV_Failure::KLV_Failure(const KLV_Failure& other) = default;

KLV_Failure::~KLV_Failure() = default;

KLV_Failure* KLV_Failure::Clone() const
{
  return m_cause != nullptr ? new KLV_Failure(*m_cause, m_code, m_message, m_log_prefix)
                            : new KLV_Failure(m_code, m_message, m_log_prefix);
}

std::string KLV_Failure::GetTypeName() const
{
  return "KLV_Failure";
}

std::int32_t KLV_Failure::GetStatus() const
{
  return m_code.exists() ? kStatusWithCode : kStatusWithoutCode;
}
