#include "OrvelCommands/foundation/KLV_Exception.h"

#include "OrvelUtilities/KLV_Backtrace.h"

KLV_Exception::KLV_Exception(const KLV_Code& code, const std::string& message, const std::string& prefix)
  : m_code(code), m_log_prefix(prefix), m_message(message), m_backtrace(KLV_Backtrace::GetBacktrace())
{
}

KLV_Exception::KLV_Exception(const KLV_Exception& cause, const KLV_Code& code, const std::string& message,
                             const std::string& prefix)
  : KLV_Exception(code, message, prefix)
{
  m_cause = cause.Clone();
}

KLV_Exception::KLV_Exception(const std::string& message, const std::string& prefix)
  : KLV_Exception(KLV_Code(), message, prefix)
{
}

KLV_Exception::KLV_Exception(const KLV_Exception& other) = default;

KLV_Exception::~KLV_Exception()
{
  delete m_cause;
  m_cause = nullptr;
}

const char* KLV_Exception::what() const noexcept
{
  return m_message.c_str();
}

const std::string& KLV_Exception::GetMessage() const
{
  return m_message;
}

const std::string& KLV_Exception::GetLogPrefix() const
{
  return m_log_prefix;
}
