/// \file
/// One collected problem of a parameter file. An object is used by one thread at a time.
#pragma once

#include "OrvelCommands/foundation/KLV_Exception.h"

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

/// A wrong value in a parameter file, as `ValidateModelIds` of a command collects it. The library throws none.
class ORVELCOMMANDS_EXPORT KLV_ParfileException : public KLV_Exception
{
public:
  /// Takes copies. The message becomes \p message followed by two lines that tell the four other texts. There is no
  /// code and no log prefix.
  ///
  /// \param id_name the `ID_NAME` of the command that holds the parameter
  /// \param command the command's name as a parameter file spells it
  KLV_ParfileException(const std::string& message, const std::string& value, const std::string& parameter,
                       const std::string& id_name, const std::string& command);

  /// Copies the message as it is.
  KLV_ParfileException(const KLV_ParfileException& other);

  ~KLV_ParfileException() override;

  /// A new problem, built from the present message.
  /// \warning The two lines of the constructor stand twice in the clone's message. Use the copy constructor for a
  /// plain copy.
  KLV_ParfileException* Clone() const override;

  /// "KLV_ParfileException"
  std::string GetTypeName() const override;

  /// -15
  std::int32_t GetStatus() const override;

  /// The value found to be wrong.
  const std::string& GetValue() const noexcept { return m_value; }

  /// The parameter that holds it, without a trailing underscore.
  const std::string& GetParameter() const noexcept { return m_parameter; }

  /// The `ID_NAME` of the command that holds the parameter.
  const std::string& GetIdName() const noexcept { return m_id_name; }

  /// The command's name as a parameter file spells it.
  const std::string& GetCommand() const noexcept { return m_command; }

private:
  std::string m_value;
  std::string m_parameter;
  std::string m_id_name;
  std::string m_command;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
