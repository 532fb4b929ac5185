/// \file
/// The parsed commands of one parameter file.
/// Thread safety: the const operations may be called from several threads at once while nobody adds or
/// removes a command.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "OrvelCmdEngine/OrvelCmd.h"
#include "OrvelCmdEngine/OrvelCmdDefs.h"
#include "OrvelCmdEngine/orvelcmdengine_export.h"

/// Owns the commands of a parameter file, one sequence for each kind in parameter-file order.
///
/// A command keeps its address while others are added. A removed command leaves a null entry, so that all
/// others keep their positions. Positions count from 0.
class ORVELCMDENGINE_EXPORT OrvelCmdContainer
{
public:
  /// The commands of one kind; an entry may be null.
  using CmdList = std::vector<std::unique_ptr<OrvelCmd>>;

  /// Walks the entries of one kind.
  using const_iterator = CmdList::const_iterator;

  OrvelCmdContainer();
  OrvelCmdContainer(const OrvelCmdContainer& other) = delete;
  OrvelCmdContainer& operator=(const OrvelCmdContainer& other) = delete;
  ~OrvelCmdContainer();

  /// Adds a command without items behind those of its kind.
  ///
  /// Ownership: the command stays with the container; the reference holds until the command is removed.
  /// Throws: std::invalid_argument "OrvelCmdContainer: 21 is no kind of command." or the like.
  OrvelCmd& AddCommand(OrvelCmdDefs::Cmd kind);

  /// Ends the command at `position` and leaves a null entry there; references to it then read as null. An
  /// entry that is null already stays so.
  ///
  /// Throws: std::out_of_range "OrvelCmdContainer: kind 2 has 3 entries, so that there is none at position
  /// 3." or the like.
  void RemoveCommand(OrvelCmdDefs::Cmd kind, std::uint64_t position);

  /// Returns: the number of entries of the kind, null entries included; 0 for a number that is no kind.
  std::uint64_t GetNumberOfCommands(OrvelCmdDefs::Cmd kind) const;

  /// Returns: whether the kind has an entry that is not null.
  bool HasCommand(OrvelCmdDefs::Cmd kind) const;

  /// \name The entries of a kind
  /// @{

  /// Adding a command of the kind ends the iterators.
  const_iterator GetCommandBegin(OrvelCmdDefs::Cmd kind) const;
  const_iterator GetCommandEnd(OrvelCmdDefs::Cmd kind) const;
  /// @}

private:
  friend class OrvelParfileStorageCmdContainer;

  static constexpr std::size_t number_of_kinds = OrvelCmdDefs::CMD_NONE;

  // The command at the position; where there is none or a null entry, an empty command of the kind, the same
  // one for all such positions of this container. Nobody adds items to that one.
  OrvelCmd& _GetCommand(OrvelCmdDefs::Cmd kind, std::uint64_t position) const
  {
    const std::size_t place = PlaceOf(kind);
    const bool is_command =
      place < number_of_kinds && position < m_commands[place].size() && m_commands[place][position] != nullptr;
    return is_command ? *m_commands[place][position] : *m_empty_commands[place];
  }

  // A number that is no kind has the place behind those of the kinds.
  static std::size_t PlaceOf(OrvelCmdDefs::Cmd kind)
  {
    const bool is_kind = kind >= 0 && kind < OrvelCmdDefs::CMD_NONE;
    return static_cast<std::size_t>(is_kind ? kind : OrvelCmdDefs::CMD_NONE);
  }

  const CmdList& Commands(OrvelCmdDefs::Cmd kind) const;

  std::array<CmdList, number_of_kinds> m_commands;
  CmdList m_empty_commands;  // one for each kind and a last one for numbers that are no kind
};
