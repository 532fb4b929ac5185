#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include "OrvelUtilities/KLV_MESSAGE.h"

namespace
{
constexpr std::int32_t kStatus = -15;
}  // namespace

KLV_ParfileException::KLV_ParfileException(const std::string& message, const std::string& value,
                                           const std::string& parameter, const std::string& id_name,
                                           const std::string& command)
  : KLV_Exception(message, std::string()),
    m_value(value),
    m_parameter(parameter),
    m_id_name(id_name),
    m_command(command)
{
  m_message += KLV_MESSAGE("\n  Value \"%s\" of parameter \"%s\" is erroneous\n  In \"%s\" command with ID_NAME \"%s\"",
                           m_value.c_str(), m_parameter.c_str(), m_command.c_str(), m_id_name.c_str());
}

KLV_ParfileException::KLV_ParfileException(const KLV_ParfileException& other) = default;

KLV_ParfileException::~KLV_ParfileException() = default;

KLV_ParfileException* KLV_ParfileException::Clone() const
{
  return new KLV_ParfileException(m_message, m_value, m_parameter, m_id_name, m_command);
}

std::string KLV_ParfileException::GetTypeName() const
{
  return "KLV_ParfileException";
}

std::int32_t KLV_ParfileException::GetStatus() const
{
  return kStatus;
}
