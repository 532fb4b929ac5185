/// \file
/// The command NODE_GROUP_. The const operations of a loaded command may be used from several threads.
///
/// Generated from gyre_commands.toml
/// by src/OrvelCommands/commands/generator. Do not edit: change the table and run `./run generate`.
#pragma once

#include "OrvelCommands/commands/OrvelCommand.h"
#include "OrvelCommands/foundation/KLV_ParfileException.h"

#include <cstdint>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

class OrvelParfileStorage;
namespace orvel::detail
{
struct ReferenceLinker;
}

/// Recipe for a group of nodes: listed numbers and operations with other node groups.
class ORVELCOMMANDS_EXPORT NODE_GROUP_ : public OrvelCommand
{
public:
  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "NODE_GROUP";

  /// "NODE_GROUP_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  NODE_GROUP_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  NODE_GROUP_(const NODE_GROUP_& other) = default;

  /// References are taken as pointers too.
  NODE_GROUP_& operator=(const NODE_GROUP_& other) = default;

  ~NODE_GROUP_() override = default;

  /// Reads all keys but the references from the storage. Nothing is cleared first and no value is tested.
  /// Throws: what the storage throws; members read before then keep what they got.
  /// \warning After a failure the number of values of a key can be ahead of its list: read that as a whole.
  void Load(const OrvelParfileStorage& storage, const std::string& id);

  /// Writes one record to the debug log: a line for each member, cut at 1023 characters.
  /// \warning A "%" in a value acts as a printf conversion of a zero or empty argument.
  void ToString() const;

  /// Appends a problem for each model id that the open database does not know.
  /// \param id the command's name in the storage, from which the ids are read again
  /// Throws: what the storage throws; without an open database a KLV_Failure as soon as there is an id to check.
  void ValidateModelIds(const OrvelParfileStorage& storage, std::string& id,
                        std::vector<KLV_ParfileException>& errors);

  const std::string& GetType() const override;
  const std::string& GetID_NAME_() const override { return m_ID_NAME_; }

  /// Numbers of the nodes that are listed one by one.
  const std::vector<int>& GetLIST_() const { return m_LIST_; }

  /// Whether LIST_ is there.
  bool HasLIST_() const { return m_has_LIST_; }

  /// Node groups of the model that take part by merge.
  const std::vector<std::string>& GetMERGE_() const { return m_MERGE_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumMERGE_().
  const std::string& GetMERGE_(std::uint64_t index) const { return m_MERGE_[index - 1]; }

  /// How many values MERGE_ has.
  std::uint64_t NumMERGE_() const { return m_num_MERGE_; }

  /// Node groups of the model that take part by intersection.
  const std::vector<std::string>& GetINTERSECT_() const { return m_INTERSECT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumINTERSECT_().
  const std::string& GetINTERSECT_(std::uint64_t index) const { return m_INTERSECT_[index - 1]; }

  /// How many values INTERSECT_ has.
  std::uint64_t NumINTERSECT_() const { return m_num_INTERSECT_; }

  /// Node groups of the model that take part by exclusive or.
  const std::vector<std::string>& GetXOR_() const { return m_XOR_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumXOR_().
  const std::string& GetXOR_(std::uint64_t index) const { return m_XOR_[index - 1]; }

  /// How many values XOR_ has.
  std::uint64_t NumXOR_() const { return m_num_XOR_; }

  /// Node groups of the model that are subtracted.
  const std::vector<std::string>& GetSUBTRACT_() const { return m_SUBTRACT_; }

  /// The value at a place counted from 1.
  /// \warning There is no range test: \p index must be in 1 to NumSUBTRACT_().
  const std::string& GetSUBTRACT_(std::uint64_t index) const { return m_SUBTRACT_[index - 1]; }

  /// How many values SUBTRACT_ has.
  std::uint64_t NumSUBTRACT_() const { return m_num_SUBTRACT_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  bool m_has_LIST_ = false;
  std::vector<int> m_LIST_;
  std::uint64_t m_num_MERGE_ = 0;
  std::vector<std::string> m_MERGE_;
  std::uint64_t m_num_INTERSECT_ = 0;
  std::vector<std::string> m_INTERSECT_;
  std::uint64_t m_num_XOR_ = 0;
  std::vector<std::string> m_XOR_;
  std::uint64_t m_num_SUBTRACT_ = 0;
  std::vector<std::string> m_SUBTRACT_;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
