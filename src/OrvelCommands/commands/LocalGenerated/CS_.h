/// \file
/// The command CS_. The const operations of a loaded command may be used from several threads.
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

/// Coordinate system defined in the parameter file: a type, an origin and three axis vectors.
class ORVELCOMMANDS_EXPORT CS_ : public OrvelCommand
{
public:
  /// Whether the coordinates are Cartesian, cylindrical or spherical.
  enum Enum_TYPE_ : std::int32_t
  {
    TYPE_CYLINDRICAL = 67,
    TYPE_CARTESIAN = 82,
    TYPE_SPHERICAL = 83
  };

  /// The command's name in the text of a parameter file.
  static constexpr const char* COMMAND_NAME = "CS";

  /// "CS_", the name under which a storage knows the kind.
  static const std::string s_type;

  /// Every value is zero, false, null or empty.
  CS_() = default;

  /// References are copied as pointers: the copy refers to the same commands.
  CS_(const CS_& other) = default;

  /// References are taken as pointers too.
  CS_& operator=(const CS_& other) = default;

  ~CS_() override = default;

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

  /// \name Names of enumerators
  /// @{

  /// The text of an enumerator, "INVALID" for any other number.
  static std::string GetEnumName(Enum_TYPE_ value);
  /// @}

  /// Whether the coordinates are Cartesian, cylindrical or spherical.
  const Enum_TYPE_& GetTYPE_() const { return m_TYPE_; }

  /// X coordinate of the origin, 0 if left out.
  const double& GetX_ORIGIN_() const { return m_X_ORIGIN_; }

  /// Whether X_ORIGIN_ is there.
  bool HasX_ORIGIN_() const { return m_has_X_ORIGIN_; }

  /// Y coordinate of the origin, 0 if left out.
  const double& GetY_ORIGIN_() const { return m_Y_ORIGIN_; }

  /// Whether Y_ORIGIN_ is there.
  bool HasY_ORIGIN_() const { return m_has_Y_ORIGIN_; }

  /// Z coordinate of the origin, 0 if left out.
  const double& GetZ_ORIGIN_() const { return m_Z_ORIGIN_; }

  /// Whether Z_ORIGIN_ is there.
  bool HasZ_ORIGIN_() const { return m_has_Z_ORIGIN_; }

  /// X component of the first axis vector.
  const double& GetX_VEC1_() const { return m_X_VEC1_; }

  /// Y component of the first axis vector.
  const double& GetY_VEC1_() const { return m_Y_VEC1_; }

  /// Z component of the first axis vector.
  const double& GetZ_VEC1_() const { return m_Z_VEC1_; }

  /// X component of the second axis vector.
  const double& GetX_VEC2_() const { return m_X_VEC2_; }

  /// Y component of the second axis vector.
  const double& GetY_VEC2_() const { return m_Y_VEC2_; }

  /// Z component of the second axis vector.
  const double& GetZ_VEC2_() const { return m_Z_VEC2_; }

  /// X component of the third axis vector.
  const double& GetX_VEC3_() const { return m_X_VEC3_; }

  /// Y component of the third axis vector.
  const double& GetY_VEC3_() const { return m_Y_VEC3_; }

  /// Z component of the third axis vector.
  const double& GetZ_VEC3_() const { return m_Z_VEC3_; }

private:
  friend struct orvel::detail::ReferenceLinker;

  std::string m_ID_NAME_;
  Enum_TYPE_ m_TYPE_ = static_cast<Enum_TYPE_>(0);
  bool m_has_X_ORIGIN_ = false;
  double m_X_ORIGIN_ = 0.0;
  bool m_has_Y_ORIGIN_ = false;
  double m_Y_ORIGIN_ = 0.0;
  bool m_has_Z_ORIGIN_ = false;
  double m_Z_ORIGIN_ = 0.0;
  double m_X_VEC1_ = 0.0;
  double m_Y_VEC1_ = 0.0;
  double m_Z_VEC1_ = 0.0;
  double m_X_VEC2_ = 0.0;
  double m_Y_VEC2_ = 0.0;
  double m_Z_VEC2_ = 0.0;
  double m_X_VEC3_ = 0.0;
  double m_Y_VEC3_ = 0.0;
  double m_Z_VEC3_ = 0.0;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
