/// \file
/// Writes a planned job through HDF5's C interface, with something wrong where the plan says so. One thread at a time.
#pragma once

#include "hostile/job_plan.h"
#include "support/plain_hdf5.h"

#include <string>
#include <utility>
#include <vector>

class FileWriter
{
public:
  /// Makes the file. \p newest_format takes the newest format that HDF5 knows instead of the oldest one that will do.
  /// Throws: std::runtime_error when HDF5 cannot make it.
  FileWriter(const std::string& path, bool newest_format, hsize_t user_block, Numbers& numbers);

  /// What cannot be made at a wrong place is left out.
  /// Throws: std::runtime_error when a sound place cannot be made.
  void Write(const JobPlan& plan);

  /// Makes an external link that leads from this file to the "/PARFILE" of another.
  void WriteWayBack(const std::string& file);

  /// Bytes to put at places of the closed file: what HDF5 itself would not write.
  const std::vector<std::pair<haddr_t, std::string>>& Patches() const { return m_patches; }

private:
  void WriteCommand(const std::string& kind_path, const PlannedCommand& command);
  void WriteKey(const std::string& command_path, const PlannedKey& key);
  void WriteSoundKey(const std::string& path, const PlannedKey& key);
  void MakeGroup(const std::string& path);
  void MakeWrongLink(const std::string& path);
  void MakeWrongKey(const std::string& path, const PlannedKey& key);
  void MakeWithWrongSpace(const std::string& path, const PlannedKey& key);
  void MakeWithWrongType(const std::string& path);
  void MakeWithWrongLayout(const std::string& path, const PlannedKey& key);
  void MakeWrongText(const std::string& path);
  void MakeWrongReferences(const std::string& path);
  void MakeWrongLength(const std::string& path, const PlannedKey& key);
  plain_hdf5::Id MakeDataset(const std::string& path, hid_t type, hid_t space, hid_t list);
  void WriteSomething(hid_t dataset, hid_t type, std::size_t count);
  std::string AnyPath();

  Numbers& m_numbers;
  std::string m_path;
  plain_hdf5::Id m_access;
  plain_hdf5::Id m_transfer;
  plain_hdf5::Id m_file;
  std::vector<std::string> m_groups;  // made so far
  std::vector<std::pair<haddr_t, std::string>> m_patches;
};
