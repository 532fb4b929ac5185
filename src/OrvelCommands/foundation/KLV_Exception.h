/// \file
/// The root of all failures of the library. A failure object is used by one thread at a time.
#pragma once

#include "OrvelCommands/orvelcommands_export.h"
#include "OrvelUtilities/KLV_Code.h"

#include <cstdint>
#include <exception>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251 4275)
#endif

/// A failure with a code, a text for people, the log prefix of the class that raised it, an optional cause and
/// the call stack at its construction.
///
/// \warning A copy shares the cause with its source, and each of them deletes it when destroyed. Copy a failure
/// that has a cause with Clone(), never with the copy constructor, throw it where it is made, since a failure that is
/// thrown by its name is copied, and catch it by reference.
class ORVELCOMMANDS_EXPORT KLV_Exception : public std::exception
{
public:
  /// Takes copies of all three and the present call stack.
  KLV_Exception(const KLV_Code& code, const std::string& message, const std::string& prefix);

  /// The same, with a Clone() of \p cause as the owned cause.
  KLV_Exception(const KLV_Exception& cause, const KLV_Code& code, const std::string& message,
                const std::string& prefix);

  /// The same as the first, without a code.
  KLV_Exception(const std::string& message, const std::string& prefix);

  /// Copies everything. Ownership: the cause pointer itself is copied, see the warning of the class.
  KLV_Exception(const KLV_Exception& other);

  KLV_Exception& operator=(const KLV_Exception&) = delete;

  /// Deletes the cause.
  ~KLV_Exception() override;

  /// The message without the prefix.
  const char* what() const noexcept override;

  /// A new failure of the same class. Ownership: the caller deletes it.
  virtual KLV_Exception* Clone() const = 0;

  /// The text for people.
  virtual const std::string& GetMessage() const;

  /// The log prefix of the class that raised the failure, its placeholders unexpanded. May be empty.
  virtual const std::string& GetLogPrefix() const;

  /// The name of the failure's class.
  virtual std::string GetTypeName() const = 0;

  /// A number for the class and state of the failure. The library reads it nowhere.
  virtual std::int32_t GetStatus() const = 0;

  /// The code of the site, not existing where the site gives none.
  const KLV_Code& GetCode() const noexcept { return m_code; }

  /// The nested failure or null. Ownership: stays with this object.
  const KLV_Exception* GetCause() const noexcept { return m_cause; }

  /// The call stack at construction, innermost frame first.
  const std::vector<std::string>& GetBacktrace() const noexcept { return m_backtrace; }

protected:
  KLV_Code m_code;                       ///< What GetCode() gives.
  std::string m_log_prefix;              ///< What GetLogPrefix() gives.
  std::string m_message;                 ///< What GetMessage() gives; derived classes may add to it.
  KLV_Exception* m_cause = nullptr;      ///< What GetCause() gives. Ownership: deleted with this object.
  std::vector<std::string> m_backtrace;  ///< What GetBacktrace() gives.
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
