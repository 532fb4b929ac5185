/// \file
/// The storage over an HDF5 file. A storage is used by one thread at a time. Two threads may use two storages where
/// HDF5 is built for threads, and then make them one after the other, as each takes its file from the working
/// directory.
#pragma once

#include "OrvelCommands/foundation/OrvelParfileStorage.h"
#include "OrvelCommands/foundation/parfile_constants.h"

#include <H5Cpp.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#ifdef _MSC_VER
#pragma warning(push)
#pragma warning(disable : 4251)
#endif

namespace orvel::detail
{
struct FailureText;
}

/// A parameter file that outlives the process: the file PARFILE_STORAGE_FILE in the working directory.
///
/// In the file stand a group "/PARFILE", in it a group for each kind of command, in it a group for each `ID_NAME`, in
/// it a one-dimensional extendable dataset for each key, one element for each value. A text is a variable-length
/// sequence of one-character strings with its terminating NUL, a reference an HDF5 object reference to the group of
/// its target. Names are not escaped: a "/" in one means a level more, and "" and "." mean the group above.
///
/// The storage opens the file and never makes it. (A file of zero bytes opened for writing is turned into a valid
/// empty file by HDF5.) It is open for the whole life of the object and closes as the object is destroyed.
///
/// Throws: KLV_Failure with the detail text of HDF5 where the operation tells a code. Exceptions of HDF5's binding
/// that an operation does not name pass out as they are. HDF5 prints its own report on standard error unless the
/// program has called `H5::Exception::dontPrint()`.
///
/// Cost: each lookup of a name is one pass over the names of its group, in name order, and ends at the match. No
/// names are kept between calls. Counting the commands of a kind and naming one are walks over them too.
///
/// Other processes: several may read a file at once. While one has it open for writing no other can open it, and while
/// one reads it no other can open it for writing; the constructor then fails at once with its first failure. (HDF5
/// locks the file, where the file system can and HDF5_USE_FILE_LOCKING does not say otherwise.)
///
/// \warning HDF5 writes the values at once and the tree that leads to them as it finds time, at the latest as the
/// storage is destroyed. A disk that is full by then, or a process that is killed before, can leave a file in which
/// also what was there before cannot be reached any more. A destructor reports nothing; after a full disk HDF5 itself
/// crashes as the process ends. Fill a copy and rename it where that matters.
///
/// \warning Copies share one open file, and each of them deletes it when destroyed: at most one of the objects that
/// share a file may ever be destroyed. An assignment does not release the file that the target held.
class ORVELCOMMANDS_EXPORT ParfileHdf5Storage : public OrvelParfileStorage
{
public:
  /// Opens the file and its "/PARFILE" group.
  ///
  /// \param create_group true on the first run on a fresh file: makes "/PARFILE"; false on later runs: opens it
  /// \param read_only true opens the file for reading only; together with \p create_group it always fails
  ///
  /// Throws: "Failed to create the HDF5 optimization database..." without a code when the file cannot be opened;
  /// "192431310512" when "/PARFILE" cannot be made, "192435310512" when it cannot be opened.
  ///
  /// \warning After one of the last two failures the file stays open for the life of the process, with the locks and
  /// the access that it was opened with.
  explicit ParfileHdf5Storage(bool create_group = false, bool read_only = false);

  /// Ownership: shares the open file, see the warning of the class.
  ParfileHdf5Storage(const ParfileHdf5Storage& other);

  /// Ownership: shares the open file, see the warning of the class.
  ParfileHdf5Storage& operator=(const ParfileHdf5Storage& other);

  /// Closes the file.
  ~ParfileHdf5Storage() override;

  /// Throws: "185548010612" for a kind of which the file has no group.
  bool HasCommand(const std::string& command, const std::string& id_name) const override;

  /// 0 for a kind of which the file has no group.
  std::uint64_t GetNumCommand(const std::string& command) const override;

  /// Throws: "185548060612" for an absent kind or id name.
  std::uint64_t GetNumElements(const std::string& command, const std::string& id_name,
                               const std::string& key) const override;

  /// Throws: "185548060612" for an absent kind or id name.
  bool HasElement(const std::string& command, const std::string& id_name, const std::string& key) const override;

  /// Commands come in the byte order of their names, not in the order in which they were added.
  /// Throws: "185548060612" for an absent kind and for a position not below the count.
  void GetCommandName(const std::string& command, std::uint64_t position, std::string& id_name) const override;

  /// Throws: "172740050612" for an absent kind, id name or key and for an element that refers to no group or to one
  /// that was removed; "134746060612" for an index past the end and for a key that holds no references.
  ///
  /// Cost: one pass over the commands of the kind that the key is named after; a target of another kind is a search of
  /// the whole file.
  void GetReference(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    std::string& target_id_name) const override;

  /// \name Reading one value
  /// @{

  /// A text ends at its first NUL; an element without data gives the empty text. \p type gives the type in memory, and
  /// HDF5 converts from the type in the file. With a type that moves no value nothing is read.
  ///
  /// Throws: "160045060612" for an absent key, "172756040612" for an absent kind or id name, "134746060612" for an
  /// index past the end, for an element that HDF5 cannot convert and for a \p type that \p value cannot take.
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<double>& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::vector<int>& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, std::string& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, double& value) const override;
  void GetValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                VtmType type, int& value) const override;
  void GetEnumValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                    VtmType type, int& value) const override;
  /// @}

  /// \name Overwriting one value
  /// @{

  /// An index past the end grows the key; the values between are 0 or empty. With a type that moves no value nothing
  /// is written.
  ///
  /// Throws: "160046060612" for an absent key, "172757040612" for an absent kind or id name, "172740040612" where the
  /// element cannot be written and for a \p type that \p value cannot be stored as.
  ///
  /// \warning Index 0 removes all values of the key and then fails in the writing. A negative index fails in the
  /// writing too and leaves a key that HDF5 cannot open again.
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::vector<double>& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::vector<int>& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const char& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const std::string& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const double& value) const override;
  void SetValue(const std::string& command, const std::string& id_name, const std::string& key, int index, VtmType type,
                const int& value) const override;
  /// @}

  /// \name Appending one value
  /// @{

  /// The first value of a key settles its type in the file. With a type that moves no value nothing is written, also
  /// for an id name that does not exist.
  ///
  /// Throws: "172758040612" for an absent kind or id name and where the key cannot be made, "172740040612" where the
  /// element cannot be written, the key having grown by one element, and for a \p type that \p value cannot be stored
  /// as, the key being as it was.
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::vector<double>& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::vector<int>& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const char& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const std::string& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const double& value) const override;
  void AddValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                const int& value) const override;
  /// @}

  /// An absent key is no failure.
  /// Throws: "185548060612" for an absent kind or id name, "202404140612" where the key cannot be removed.
  void DeleteValues(const std::string& command, const std::string& id_name, const std::string& key) override;

  /// Throws: "185546010612" where the kind's group cannot be made, "The ID_NAME %s is already used. Please check your
  /// parameterfile" without a code for a name taken within the kind, "185548010612" where the command cannot be made.
  void AddCommand(const std::string& command, const std::string& id_name) const override;

  /// Throws: "A command of type %s with the ID_NAME %s referenced in the parameterfile is not found..." without a code
  /// for an absent target, which leaves the key as it was; "172740050612" for an absent kind or id name and where the
  /// key cannot be made; "172740040612" where the element cannot be written.
  void AddReference(const std::string& command, const std::string& id_name, const std::string& key,
                    const std::string& target_command, const std::string& target_id_name) const override;

private:
  static const std::string PARFILE_GROUP;

  bool HasGroupOrSet(const H5::Group& group, const std::string& name) const;
  std::unique_ptr<H5::DataType> MakeDataType(VtmType type) const;

  // Opens a key that is there.
  H5::DataSet OpenKey(const std::string& command, const std::string& id_name, const std::string& key,
                      const orvel::detail::FailureText& absent, const orvel::detail::FailureText& not_reached) const;

  // Opens a key of a command for one more value, making it when it is not there, and tells the 0-based place of that
  // value.
  H5::DataSet OpenForAppend(const H5::Group& group, const std::string& group_path, const std::string& key,
                            const H5::DataType& type, std::size_t& position) const;

  template <class Value>
  void ReadValue(const std::string& command, const std::string& id_name, const std::string& key, std::uint64_t index,
                 VtmType type, Value& value) const;
  template <class Value>
  void OverwriteValue(const std::string& command, const std::string& id_name, const std::string& key, int index,
                      VtmType type, const Value& value) const;
  template <class Value>
  void AppendValue(const std::string& command, const std::string& id_name, const std::string& key, VtmType type,
                   const Value& value) const;

  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, const void* buffer) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, const std::string& value) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
           const std::vector<int>& value) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
           const std::vector<double>& value) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, const char& value) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, const int& value) const;
  void Set(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, const double& value) const;

  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, void* buffer) const;
  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, std::string& value) const;
  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, std::vector<int>& value) const;
  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position,
           std::vector<double>& value) const;
  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, int& value) const;
  void Get(const H5::DataSet& dataset, const H5::DataType& type, std::size_t position, double& value) const;

  H5::H5File* m_file = nullptr;
  H5::Group m_parfile_group;
  H5::DataSpace m_value_space;
};

#ifdef _MSC_VER
#pragma warning(pop)
#endif
