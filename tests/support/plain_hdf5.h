/// \file
/// Parameter files seen through HDF5's C interface alone: made, filled with what the storage would never write, and
/// looked at. A failure of HDF5 here is an error of the test and throws std::runtime_error. One thread at a time.
///
/// All functions work on the file `parfile_storage.hdf5` of the working directory and close it before they return.
/// Paths are absolute, such as "/PARFILE/DV_/porosity/TYPE_". Indices count from 0.
#pragma once

#include <hdf5.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace plain_hdf5
{

/// Keeps HDF5 from printing its error stack while an object lives.
class QuietErrors
{
public:
  QuietErrors();
  ~QuietErrors();
  QuietErrors(const QuietErrors&) = delete;
  QuietErrors& operator=(const QuietErrors&) = delete;

private:
  H5E_auto2_t m_print = nullptr;
  void* m_data = nullptr;
};

/// An identifier of HDF5, released with the function that fits its kind.
class Id
{
public:
  using Release = herr_t (*)(hid_t);

  /// Throws std::runtime_error that names \p what when \p id is no identifier.
  Id(hid_t id, Release release, const std::string& what);
  Id(Id&& other) noexcept;
  ~Id();
  Id(const Id&) = delete;
  Id& operator=(const Id&) = delete;
  Id& operator=(Id&&) = delete;

  operator hid_t() const { return m_id; }

private:
  hid_t m_id;
  Release m_release;
};

/// How many files, groups, datasets and attributes the process holds open.
std::int64_t NumOpenObjects();
std::int64_t NumOpenFiles();

/// How many types the process holds. A part of them belongs to HDF5's binding for good, so only a change tells
/// something.
std::int64_t NumOpenTypes();

/// Gives up one hold of each of these objects, as after a storage that was never destroyed.
void CloseWhatIsLeftOpen();

/// How often the one open file is held through its identifier.
/// Requires: one open file.
int NumHoldersOfTheOpenFile();

/// The cache for chunks with which a file was opened.
struct ChunkCache
{
  std::size_t slots;
  std::size_t bytes;
  double preemption;
};

/// Requires: one open file.
ChunkCache ChunkCacheOfTheOpenFile();

/// \name Making files and groups
/// @{
void MakeEmptyFile();
void MakeFileWithParfile();
/// One of the newest format, which can be opened, but nothing in it.
void MakeFileWithBrokenRoot();
void MakeGroup(const std::string& path);
/// @}

/// \name Looking at a file
/// @{

/// Every object below the root in the order of names: "group /PARFILE", "dataset /PARFILE/DV_/porosity/TYPE_".
std::vector<std::string> Objects();

/// Over all objects of the file, the root included.
std::uint64_t NumAttributes();

unsigned SuperblockVersion();

/// Where the object that a path leads to stands in the file.
std::uint64_t AddressOf(const std::string& path);

/// What a key looks like, apart from its type and its values.
struct Shape
{
  int rank;
  hsize_t extent;
  hsize_t max_extent;
  H5D_layout_t layout;
  hsize_t chunk;
  int filters;
};

/// Requires: a dataset of rank 1.
Shape ShapeOf(const std::string& path);

/// In words: "signed integer of 4 bytes", "IEEE float of 8 bytes", "string of 1 byte", "variable-length string",
/// "object reference of 8 bytes", "sequence of " and one of these, or "another type".
std::string TypeOf(const std::string& path);

/// The bytes of a variable-length element of one-byte strings as they lie in the file, NULs included.
std::string BytesAt(const std::string& path, hsize_t index);

/// A variable-length element of integers or floats.
std::vector<int> IntegersAt(const std::string& path, hsize_t index);
std::vector<double> DoublesAt(const std::string& path, hsize_t index);

int IntegerAt(const std::string& path, hsize_t index);
double DoubleAt(const std::string& path, hsize_t index);

/// The path of the object that a reference leads to.
std::string TargetAt(const std::string& path, hsize_t index);

/// @}

/// \name Types for the datasets below
/// @{
Id Copy(hid_t type);
Id StringOf(std::size_t size);
Id SequenceOf(hid_t type);
Id PairOfIntegers();
/// @}

/// \name Making datasets
/// The data is in memory as the type says; null leaves all elements unwritten.
/// @{

/// A dataset as the storage makes it: rank 1, unlimited, one element a chunk.
void MakeKey(const std::string& path, hid_t type, hsize_t extent, const void* data);

/// A variable-length key of one-byte strings with these bytes, no NUL added.
void MakeText(const std::string& path, const std::vector<std::string>& elements);

void MakeChunked(const std::string& path, hid_t type, const std::vector<hsize_t>& extent, const void* data);
void MakeContiguous(const std::string& path, hid_t type, const std::vector<hsize_t>& extent, const void* data);
void MakeScalar(const std::string& path, hid_t type, const void* data);
void MakeNull(const std::string& path, hid_t type);
void MakeSoftLink(const std::string& path, const std::string& target);
void MakeExternalLink(const std::string& path, const std::string& file_name, const std::string& target);

/// A key of object references, one for each target. An empty target gives the reference that is all zero.
void MakeReferences(const std::string& path, const std::vector<std::string>& targets);

/// A key of one region reference, which points into a dataset.
void MakeRegionReference(const std::string& path, const std::string& target);

/// Gives an object another path.
void Move(const std::string& from, const std::string& to);

/// Takes a link out of the file; references to what it named then lead nowhere.
void Remove(const std::string& path);

/// @}

/// Overwrites the last symbol table node in the file, which lists the members of the group that got its first member
/// last.
void BreakLastGroup();

}  // namespace plain_hdf5
