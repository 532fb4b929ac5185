/// \file
/// The base of all command classes. The const operations of a loaded command may be used from several threads.
#pragma once

#include "OrvelBaseObjects/KLV_Object.h"
#include "OrvelCommands/orvelcommands_export.h"

#include <string>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251 4275)
#endif

/// A command of a parameter file, through which anyone learns the kind and the id of a command of any class.
class ORVELCOMMANDS_EXPORT OrvelCommand : public KLV_Object
{
public:
  /// "OrvelCommand". Each command class has one of its own: the class's name, under which storages know the kind.
  static const std::string s_type;

  /// Copies the reserved flag, which is all that the base holds.
  OrvelCommand(const OrvelCommand& other);

  /// Takes the reserved flag of \p other.
  OrvelCommand& operator=(const OrvelCommand& other);

  ~OrvelCommand() override;

  /// The kind of command, with its trailing underscore.
  virtual const std::string& GetType() const;

  /// The `ID_NAME` of the command, empty before it is loaded.
  virtual const std::string& GetID_NAME_() const = 0;

protected:
  OrvelCommand();

  /// Part of what a copy carries; nothing in this library sets or reads it.
  bool m_reserved_flag = false;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
