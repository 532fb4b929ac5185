/// \file
/// What the tests of the HDF5 storage share. One thread at a time.
#pragma once

#include "OrvelCommands/storage/ParfileHdf5Storage.h"
#include "support/plain_hdf5.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

/// A working directory of its own without HDF5's reports, in which nothing may be left open in the end.
class ParfileHdf5StorageTest : public testing::Test
{
protected:
  void SetUp() override
  {
    // The binding makes its types at their first use and keeps them.
    H5::PredType::NATIVE_INT.getId();
    m_types_before = plain_hdf5::NumOpenTypes();
  }
  void TearDown() override
  {
    EXPECT_EQ(plain_hdf5::NumOpenObjects(), 0);
    EXPECT_EQ(plain_hdf5::NumOpenTypes(), m_types_before);
  }

  /// A storage on a file that is made anew, with its "/PARFILE".
  static ParfileHdf5Storage FreshStorage()
  {
    plain_hdf5::MakeEmptyFile();
    return ParfileHdf5Storage(true);
  }

  /// As FreshStorage(), with the command "DV_" "porosity".
  static ParfileHdf5Storage StorageWithCommand()
  {
    AddCommandToFreshFile();
    return ParfileHdf5Storage();
  }

  static ParfileHdf5Storage ReadOnlyStorage() { return ParfileHdf5Storage(false, true); }

private:
  static void AddCommandToFreshFile() { FreshStorage().AddCommand("DV_", "porosity"); }

  TemporaryFolder m_folder;
  plain_hdf5::QuietErrors m_quiet;
  std::int64_t m_types_before = 0;
};

/// \name One value as the storage reads it, of the command "DV_" "porosity"
/// The output starts with something that a read has to replace.
/// @{
inline int IntegerOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index,
                     VtmType type = vtmInteger)
{
  int value = -4711;
  storage.GetValue("DV_", "porosity", key, index, type, value);
  return value;
}

inline double DoubleOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index)
{
  double value = -47.11;
  storage.GetValue("DV_", "porosity", key, index, vtmDouble, value);
  return value;
}

inline std::string TextOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index,
                          VtmType type = vtmString)
{
  std::string value = "not read";
  storage.GetValue("DV_", "porosity", key, index, type, value);
  return value;
}

inline std::vector<int> IntegersOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index)
{
  std::vector<int> value{-47, -11};
  storage.GetValue("DV_", "porosity", key, index, vtmIntegerList, value);
  return value;
}

inline std::vector<double> DoublesOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index)
{
  std::vector<double> value{-4.7, -1.1};
  storage.GetValue("DV_", "porosity", key, index, vtmDoubleList, value);
  return value;
}

inline std::string ReferenceOf(const OrvelParfileStorage& storage, const std::string& key, std::uint64_t index)
{
  std::string target = "not read";
  storage.GetReference("DV_", "porosity", key, index, target);
  return target;
}

inline std::uint64_t CountOf(const OrvelParfileStorage& storage, const std::string& key)
{
  return storage.GetNumElements("DV_", "porosity", key);
}
/// @}
